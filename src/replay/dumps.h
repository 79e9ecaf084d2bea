// What a script may ask for: each answer is one JSON object on one line.
#pragma once

#include <string>
#include <string_view>

#include "desk/orvane_desk.h"

namespace orvane {

using Dump = std::string (*)(const Orvane_Desk& desk);

// The dump of that name, "" for the scalar fields; nullptr when there is none.
Dump FindDump(std::string_view name);

std::string DumpFields(const Orvane_Desk& desk);  // "": scalar fields, title, result, points, bars
std::string DumpControls(const Orvane_Desk& desk);  // "controls": each control's own flags
std::string DumpAtoms(const Orvane_Desk& desk);     // "atoms": arrays from atom 1 to AtomCount
std::string DumpBonds(const Orvane_Desk& desk);     // "bonds": both kinds of bond
std::string DumpSurvey(const Orvane_Desk& desk);    // "survey": torsions, 1 to PhiCount
std::string DumpReadout(const Orvane_Desk& desk);   // "readout": only title, counts and result

}  // namespace orvane
