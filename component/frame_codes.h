// Procedure codes and frame context texts of the classes whose frame methods
// share one parameter list. Some context texts carry another class's name;
// they are the component's own and kept as they are.
#pragma once
#include "component/generator.h"

namespace tamrel::frames {

inline constexpr FrameSpec kErst{"AGAAG", "AAGER", "clsGenErst.GenVOSZ(", "clsGenErst.GenDSKO(", "clsGenErst.GenNCSZ("};
inline constexpr FrameSpec kZahl{"AGDAZ", "ZAHLS", "clsGenZahl.GenVOSZ(", "clsGenZahl.GenDSKO(", "clsGenZahl.GenNCSZ("};
inline constexpr FrameSpec kBetrieb{"AGDEU", "DEUEV", "clsGenBetrieb.GenVOSZ(", "clsGenBetrieb.GenDSKO(",
                                    "clsGenBetrieb.GenNCSZ("};
inline constexpr FrameSpec kArbeitsBesch{"AGTBA", "ALG", "clsGenEntgelt.GenVOSZ(", "clsGenErst.GenDSKO",
                                         "clsGenEntgelt.GenNCSZ("};
inline constexpr FrameSpec kEntgelt{"AGEEL", "LEIST", "clsGenEntgelt.GenVOSZ(", "clsGenErst.GenDSKO",
                                    "clsGenEntgelt.GenNCSZ("};
inline constexpr FrameSpec kAbfrVers{"AGTRV", "DEUEV", "clsGenAbfrVers.GenVOSZ(", "clsGenAbfrVers.GenDSKO(",
                                     "clsGenEntgelt.GenNCSZ("};
inline constexpr FrameSpec kAbfrStammdatenUV{"UNUVS", "UVSDD", "clsGenAbfrStammdatenUV.GenVOSZ(",
                                             "clsGenAbfrStammdatenUV.GenDSKO(", "clsGenAbfrStammdatenUV.GenNCSZ("};
inline constexpr FrameSpec kLohnnachweis{"UNUVL", "UVELN", "clsGenLohnnachweis.GenVOSZ(",
                                         "clsGenLohnnachweis.GenDSKO(", "clsGenLohnnachweis.GenNCSZ("};

}  // namespace tamrel::frames
