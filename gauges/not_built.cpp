/// Gauges that show their plate alone: their header and background are there, so that panels can be
/// laid out around them, and they neither move nor answer.
#include "module/catalogue.h"

namespace tarnvale {

// ---- Sound
constinit Gauge<1, 0> stewcall{Face{.name = "Stewcall", .width_mm = 82, .background = 1030}};
constinit Gauge<1, 0> hvsnd{Face{.name = "Hvsnd", .width_mm = 20, .background = 10}};

// ---- Instruments
constinit Gauge<1, 0> aitest{Face{.name = "Aitest", .width_mm = 36, .background = 1180}};
constinit Gauge<1, 0> rmi{Face{.name = "Rmi", .width_mm = 141, .background = 11010}};
constinit Gauge<1, 0> hsi{Face{.name = "Hsi", .width_mm = 183, .background = 11120}};
constinit Gauge<1, 0> altimeter{Face{.name = "Altimeter", .width_mm = 117, .background = 11340}};
constinit Gauge<1, 0> adi{Face{.name = "Adi", .width_mm = 183, .background = 12010}};
constinit Gauge<1, 0> clock{Face{.name = "Clock", .width_mm = 94, .background = 12180}};
constinit Gauge<1, 0> markers{Face{.name = "Markers", .width_mm = 23, .background = 12240}};
constinit Gauge<1, 0> airspeed{Face{.name = "Airspeed", .width_mm = 142, .background = 12260}};
constinit Gauge<1, 0> radalt{Face{.name = "Radalt", .width_mm = 90, .background = 12410}};
constinit Gauge<1, 0> adisafe{Face{.name = "Adisafe", .width_mm = 103, .background = 12480}};
constinit Gauge<1, 0> vsitcas{Face{.name = "Vsitcas", .width_mm = 111, .background = 14440}};
constinit Gauge<1, 0> oat{Face{.name = "Oat", .width_mm = 67, .background = 20040}};
constinit Gauge<1, 0> fdir{Face{.name = "Fdir", .width_mm = 30, .background = 24090}};
constinit Gauge<1, 0> aitestfsx{Face{.name = "Aitestfsx", .width_mm = 36, .background = 1180}};

// ---- Panel
constinit Gauge<1, 0> ovhtoggle{Face{.name = "Ovhtoggle", .width_mm = 196, .background = 2050}};
constinit Gauge<1, 0> checktg{Face{.name = "Checktg", .width_mm = 114, .background = 4340}};
constinit Gauge<1, 0> caradar{Face{.name = "Caradar", .width_mm = 162, .background = 14110}};
constinit Gauge<1, 0> pselect{Face{.name = "Pselect", .width_mm = 96, .background = 14220}};
constinit Gauge<1, 0> fopselect{Face{.name = "Fopselect", .width_mm = 96, .background = 20240}};
constinit Gauge<1, 0> pedtg{Face{.name = "Pedtg", .width_mm = 229, .background = 14220}};
constinit Gauge<1, 0> thrtg{Face{.name = "Thrtg", .width_mm = 148, .background = 23220}};
constinit Gauge<1, 0> intro{Face{.name = "Intro", .width_mm = 1280, .background = 24230}};

// ---- Radios
constinit Gauge<1, 0> vhf1nav{Face{.name = "Vhf1nav", .width_mm = 215, .background = 2230}};
constinit Gauge<1, 0> vhf2nav{Face{.name = "Vhf2nav", .width_mm = 215, .background = 2290}};
constinit Gauge<1, 0> comm{Face{.name = "Comm", .width_mm = 212, .background = 2340}};
constinit Gauge<1, 0> adf{Face{.name = "Adf", .width_mm = 195, .background = 2350}};
constinit Gauge<1, 0> transponder{Face{.name = "Transponder", .width_mm = 212, .background = 2370}};
constinit Gauge<1, 0> selcall{Face{.name = "Selcall", .width_mm = 190, .background = 2460}};
constinit Gauge<1, 0> micsel{Face{.name = "Micsel", .width_mm = 194, .background = 3080}};
constinit Gauge<1, 0> nav1rad{Face{.name = "Nav1rad", .width_mm = 144, .background = 13140}};

// ---- Warnings
constinit Gauge<1, 0> dhgpws{Face{.name = "Dhgpws", .width_mm = 185, .background = 3010}};
constinit Gauge<1, 0> flightrec{Face{.name = "Flightrec", .width_mm = 196, .background = 3060}};
constinit Gauge<1, 0> wiskey{Face{.name = "Wiskey", .width_mm = 71, .background = 13120}};
constinit Gauge<1, 0> stall{Face{.name = "Stall", .width_mm = 76, .background = 13250}};
constinit Gauge<1, 0> pullup{Face{.name = "Pullup", .width_mm = 28, .background = 13490}};
constinit Gauge<1, 0> fowarn{Face{.name = "Fowarn", .width_mm = 29, .background = 20070}};
constinit Gauge<1, 0> masterwarn{Face{.name = "Masterwarn", .width_mm = 58, .background = 24020}};

// ---- Controls
constinit Gauge<1, 0> trim{Face{.name = "Trim", .width_mm = 192, .background = 3230}};
constinit Gauge<1, 0> thleft{Face{.name = "Thleft", .width_mm = 264, .background = 4010}};
constinit Gauge<1, 0> ldmain{Face{.name = "Ldmain", .width_mm = 100, .background = 4250}};
constinit Gauge<1, 0> ttc{Face{.name = "Ttc", .width_mm = 75, .background = 4320}};
constinit Gauge<1, 0> thright{Face{.name = "Thright", .width_mm = 251, .background = 4480}};
constinit Gauge<1, 0> liftdump{Face{.name = "Liftdump", .width_mm = 70, .background = 13080}};
constinit Gauge<1, 0> sbrake{Face{.name = "Sbrake", .width_mm = 69, .background = 13330}};
constinit Gauge<1, 0> sbrakelg{Face{.name = "Sbrakelg", .width_mm = 29, .background = 13380}};
constinit Gauge<1, 0> stabind{Face{.name = "Stabind", .width_mm = 102, .background = 13410}};
constinit Gauge<1, 0> gear{Face{.name = "Gear", .width_mm = 36, .background = 14120}};
constinit Gauge<1, 0> flapind{Face{.name = "Flapind", .width_mm = 70, .background = 20010}};
constinit Gauge<1, 0> fobrake{Face{.name = "Fobrake", .width_mm = 147, .background = 20120}};
constinit Gauge<1, 0> fouti{Face{.name = "Fouti", .width_mm = 145, .background = 20140}};
constinit Gauge<1, 0> foflt{Face{.name = "Foflt", .width_mm = 146, .background = 20160}};
constinit Gauge<1, 0> gearind{Face{.name = "Gearind", .width_mm = 122, .background = 20260}};
constinit Gauge<1, 0> gustlock{Face{.name = "Gustlock", .width_mm = 21, .background = 24050}};
constinit Gauge<1, 0> pushback{Face{.name = "Pushback", .width_mm = 252, .background = 24120}};
constinit Gauge<1, 0> vcthleft{Face{.name = "Vcthleft", .width_mm = 264, .background = 4010}};
constinit Gauge<1, 0> vcthright{Face{.name = "Vcthright", .width_mm = 251, .background = 4480}};
constinit Gauge<1, 0> vcbrake{Face{.name = "Vcbrake", .width_mm = 264, .background = 4010}};

// ---- Autopilot
constinit Gauge<1, 0> apcon{Face{.name = "Apcon", .width_mm = 206, .background = 3340}};
constinit Gauge<1, 0> aplight{Face{.name = "Aplight", .width_mm = 26, .background = 12460}};
constinit Gauge<1, 0> apcourse{Face{.name = "Apcourse", .width_mm = 171, .background = 13450}};
constinit Gauge<1, 0> apalt{Face{.name = "Apalt", .width_mm = 116, .background = 14060}};
constinit Gauge<1, 0> apmode{Face{.name = "Apmode", .width_mm = 203, .background = 14140}};
constinit Gauge<1, 0> cat2apsys{Face{.name = "Cat2apsys", .width_mm = 104, .background = 14240}};
constinit Gauge<1, 0> apset{Face{.name = "Apset", .width_mm = 120, .background = 14350}};

// ---- Engines
constinit Gauge<1, 0> firesw{Face{.name = "Firesw", .width_mm = 162, .background = 4350}};
constinit Gauge<1, 0> cutoff{Face{.name = "Cutoff", .width_mm = 216, .background = 4390}};
constinit Gauge<1, 0> engn1{Face{.name = "Engn1", .width_mm = 152, .background = 10310}};
constinit Gauge<1, 0> engtgt{Face{.name = "Engtgt", .width_mm = 149, .background = 10350}};
constinit Gauge<1, 0> eng1n2{Face{.name = "Eng1n2", .width_mm = 78, .background = 10380}};
constinit Gauge<1, 0> eng2n2{Face{.name = "Eng2n2", .width_mm = 78, .background = 14170}};
constinit Gauge<1, 0> eng1ins{Face{.name = "Eng1ins", .width_mm = 74, .background = 10420}};
constinit Gauge<1, 0> eng2ins{Face{.name = "Eng2ins", .width_mm = 74, .background = 10470}};
constinit Gauge<1, 0> fuelrl{Face{.name = "Fuelrl", .width_mm = 147, .background = 12340}};
constinit Gauge<1, 0> fuelc{Face{.name = "Fuelc", .width_mm = 111, .background = 12370}};
constinit Gauge<1, 0> fuelshut{Face{.name = "Fuelshut", .width_mm = 81, .background = 13020}};
constinit Gauge<1, 0> cafire{Face{.name = "Cafire", .width_mm = 448, .background = 13040}};
constinit Gauge<1, 0> coltsw{Face{.name = "Coltsw", .width_mm = 126, .background = 14190}};
constinit Gauge<1, 0> ffsys{Face{.name = "Ffsys", .width_mm = 147, .background = 14310}};
constinit Gauge<1, 0> fofire{Face{.name = "Fofire", .width_mm = 450, .background = 20190}};
constinit Gauge<1, 0> fuelreq{Face{.name = "Fuelreq", .width_mm = 192, .background = 24260}};

}  // namespace tarnvale
