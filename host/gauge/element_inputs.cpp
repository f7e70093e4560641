#include "host/gauge/element_inputs.h"

#include <algorithm>

namespace host {
namespace {

constexpr std::size_t longest_text = 1024;

void read_text(const StringPart& string, std::string& text) {
  text.clear();
  const std::size_t longest = std::min<std::size_t>(string.max_characters, longest_text);
  for (std::size_t i = 0; i < longest && string.text[i] != 0; ++i) {
    const char c = string.text[i];
    text += c >= ' ' && c <= '~' ? c : '?';
  }
}

}  // namespace

ElementInputs::ElementInputs(Element& element) : element_(&element) {
  switch (element.kind) {
    case ELEMENT_NEEDLE: add(element.needle.source, element.needle.value); break;
    case ELEMENT_ICON: add(element.icon.source, element.icon.value); break;
    case ELEMENT_STRING:
      add(element.string.source[0], element.string.value);
      add_source(element.string.source[1]);
      break;
    case ELEMENT_SLIDER:
      add(element.slider.x_source, element.slider.x_value);
      add(element.slider.y_source, element.slider.y_value);
      break;
    case ELEMENT_MOVING_IMAGE:
      for (MovingAxis* axis : {&element.moving_image.x, &element.moving_image.y})
        add(axis->source, axis->value);
      break;
    case ELEMENT_SPRITE:
      for (SpriteAxis* axis : {&element.sprite.x, &element.sprite.y, &element.sprite.rotation})
        add(axis->source, axis->value);
      break;
  }
}

void ElementInputs::add(TokenVariable& source, ValueRoutine routine) {
  add_source(source);
  routines_[value_count_++] = routine;
}

void ElementInputs::evaluate(const TokenSource& tokens, ElementState& state) const {
  for (std::size_t i = 0; i < source_count_; ++i) {
    TokenVariable& source = *sources_[i];
    if (source.token != 0) source.value = tokens.token(source.token);
  }
  for (std::size_t i = 0; i < value_count_; ++i)
    state.values[i] = routines_[i] ? routines_[i](element_) : sources_[i]->value;
  if (element_->kind == ELEMENT_STRING) read_text(element_->string, state.text);
}

bool ElementInputs::same_as(const ElementInputs& other) const {
  const Element& one = *element_;
  const Element& two = *other.element_;
  if (one.kind != two.kind || one.resource_id != two.resource_id) return false;
  for (std::size_t i = 0; i < value_count_; ++i) {
    if (routines_[i] != other.routines_[i]) return false;
    if (routines_[i] == nullptr && sources_[i]->token != other.sources_[i]->token) return false;
  }
  return true;
}

}  // namespace host
