/// Gauges that show their plate alone: their header and background are there, so that panels can be
/// laid out around them, and they neither move nor answer.
#include "module/catalogue.h"

namespace tarnvale {

// ---- Radios
constinit Gauge vhf1nav{{.name = "Vhf1nav", .width_mm = 215, .background = 2230}};
constinit Gauge vhf2nav{{.name = "Vhf2nav", .width_mm = 215, .background = 2290}};
constinit Gauge comm{{.name = "Comm", .width_mm = 212, .background = 2340}};
constinit Gauge adf{{.name = "Adf", .width_mm = 195, .background = 2350}};
constinit Gauge transponder{{.name = "Transponder", .width_mm = 212, .background = 2370}};
constinit Gauge selcall{{.name = "Selcall", .width_mm = 190, .background = 2460}};
constinit Gauge micsel{{.name = "Micsel", .width_mm = 194, .background = 3080}};
constinit Gauge nav1rad{{.name = "Nav1rad", .width_mm = 144, .background = 13140}};

// ---- Warnings
constinit Gauge dhgpws{{.name = "Dhgpws", .width_mm = 185, .background = 3010}};
constinit Gauge flightrec{{.name = "Flightrec", .width_mm = 196, .background = 3060}};
constinit Gauge wiskey{{.name = "Wiskey", .width_mm = 71, .background = 13120}};
constinit Gauge stall{{.name = "Stall", .width_mm = 76, .background = 13250}};
constinit Gauge pullup{{.name = "Pullup", .width_mm = 28, .background = 13490}};
constinit Gauge fowarn{{.name = "Fowarn", .width_mm = 29, .background = 20070}};
constinit Gauge masterwarn{{.name = "Masterwarn", .width_mm = 58, .background = 24020}};

// ---- Controls
constinit Gauge trim{{.name = "Trim", .width_mm = 192, .background = 3230}};
constinit Gauge thleft{{.name = "Thleft", .width_mm = 264, .background = 4010}};
constinit Gauge ldmain{{.name = "Ldmain", .width_mm = 100, .background = 4250}};
constinit Gauge ttc{{.name = "Ttc", .width_mm = 75, .background = 4320}};
constinit Gauge thright{{.name = "Thright", .width_mm = 251, .background = 4480}};
constinit Gauge liftdump{{.name = "Liftdump", .width_mm = 70, .background = 13080}};
constinit Gauge sbrake{{.name = "Sbrake", .width_mm = 69, .background = 13330}};
constinit Gauge sbrakelg{{.name = "Sbrakelg", .width_mm = 29, .background = 13380}};
constinit Gauge stabind{{.name = "Stabind", .width_mm = 102, .background = 13410}};
constinit Gauge gear{{.name = "Gear", .width_mm = 36, .background = 14120}};
constinit Gauge flapind{{.name = "Flapind", .width_mm = 70, .background = 20010}};
constinit Gauge fobrake{{.name = "Fobrake", .width_mm = 147, .background = 20120}};
constinit Gauge fouti{{.name = "Fouti", .width_mm = 145, .background = 20140}};
constinit Gauge foflt{{.name = "Foflt", .width_mm = 146, .background = 20160}};
constinit Gauge gearind{{.name = "Gearind", .width_mm = 122, .background = 20260}};
constinit Gauge gustlock{{.name = "Gustlock", .width_mm = 21, .background = 24050}};
constinit Gauge pushback{{.name = "Pushback", .width_mm = 252, .background = 24120}};
constinit Gauge vcthleft{{.name = "Vcthleft", .width_mm = 264, .background = 4010}};
constinit Gauge vcthright{{.name = "Vcthright", .width_mm = 251, .background = 4480}};
constinit Gauge vcbrake{{.name = "Vcbrake", .width_mm = 264, .background = 4010}};

}  // namespace tarnvale
