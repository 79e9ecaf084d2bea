// The four lists of stock structures: their rows, and the road from a click on a row to the
// picture.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Once at start: the texts that are compared with MolText later, and TitlePrefix.
void AssembleStockTexts(Catalogue& fields);

// Once at start, in this order.
void FillAminoList(Orvane_Desk& desk);
void FillProteinList(Orvane_Desk& desk);
void FillNucleotideList(Orvane_Desk& desk);
void FillDnaList(Orvane_Desk& desk);

// A click on a row: the menus for this kind of structure, its text, load, Reset. The drawing mode
// and the colours survive. Without a chosen row the key is empty and fits nothing: AA_Lst then
// loads nothing, the others load the previous text again.
void AA_Lst_Click(Orvane_Desk& desk);
void Pro_Lst_Click(Orvane_Desk& desk);
void Nuc_Lst_Click(Orvane_Desk& desk);
void DNA_Lst_Click(Orvane_Desk& desk);

}  // namespace orvane
