// The module's own bitmaps, as its build has drawn them.
  .section .panelres, "a", @progbits
  .balign 16
  .incbin PANELRES_FILE
  .section .note.GNU-stack, "", @progbits
