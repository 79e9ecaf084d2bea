// The rows of the four lists of stock structures, and the texts that are put together at start.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Called once at start: sets the texts that are compared with MolText later, and TitlePrefix.
void AssembleStockTexts(Catalogue& fields);

// Called once at start, in this order.
void FillAminoList(Orvane_Desk& desk);
void FillProteinList(Orvane_Desk& desk);
void FillNucleotideList(Orvane_Desk& desk);
void FillDnaList(Orvane_Desk& desk);

}  // namespace orvane
