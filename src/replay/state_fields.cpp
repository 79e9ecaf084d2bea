#include "replay/state_fields.h"

#include <type_traits>
#include <variant>

namespace orvane {
namespace {

template <class Room>
struct Field {
  std::string_view Name;
  std::variant<int Room::*, Int16 Room::*, double Room::*, float Room::*, Colour Room::*,
               std::string Room::*, NameField Room::*, AxisCells Room::*>
      Where;
};

// clang-format off
constexpr Field<Molecule> kMolecule[] = {
    {"AtomCount",     &Molecule::AtomCount},
    {"BondCount",     &Molecule::BondCount},
    {"HBondCount",    &Molecule::HBondCount},
    {"MolText",       &Molecule::MolText},
    {"AtomRec",       &Molecule::AtomRec},
    {"MaxX",          &Molecule::MaxX},
    {"MaxY",          &Molecule::MaxY},
    {"MaxZ",          &Molecule::MaxZ},
    {"MinX",          &Molecule::MinX},
    {"MinY",          &Molecule::MinY},
    {"MinZ",          &Molecule::MinZ},
    {"BoxCentreX",    &Molecule::BoxCentreX},
    {"BoxCentreY",    &Molecule::BoxCentreY},
    {"BoxCentreZ",    &Molecule::BoxCentreZ},
    {"PivotX",        &Molecule::PivotX},
    {"PivotY",        &Molecule::PivotY},
    {"PivotZ",        &Molecule::PivotZ},
    {"FitScale",      &Molecule::FitScale},
    {"BondAtomA",     &Molecule::BondAtomA},
    {"BondAtomB",     &Molecule::BondAtomB},
    {"DistResult",    &Molecule::DistResult},
    {"MoleculeReady", &Molecule::MoleculeReady},
};

constexpr Field<Selection> kSelection[] = {
    {"StockPending",  &Selection::StockPending},
    {"ListsShown",    &Selection::ListsShown},
};

constexpr Field<Catalogue> kCatalogue[] = {
    {"TextAlfa",        &Catalogue::TextAlfa},
    {"TextAlfb",        &Catalogue::TextAlfb},
    {"TextBeta",        &Catalogue::TextBeta},
    {"TextBetb",        &Catalogue::TextBetb},
    {"TextPbs",         &Catalogue::TextPbs},
    {"TextApbs",        &Catalogue::TextApbs},
    {"TextNucleotideA", &Catalogue::TextNucleotideA},
    {"TextNucleotideC", &Catalogue::TextNucleotideC},
    {"TextNucleosideG", &Catalogue::TextNucleosideG},
    {"TextNucleotideG", &Catalogue::TextNucleotideG},
    {"TextNucleotideT", &Catalogue::TextNucleotideT},
    {"TextRibose",      &Catalogue::TextRibose},
    {"TextS1Dna",       &Catalogue::TextS1Dna},
    {"TextS2Dna",       &Catalogue::TextS2Dna},
    {"TextDna3",        &Catalogue::TextDna3},
    {"AminoKey",        &Catalogue::AminoKey},
    {"ProKey",          &Catalogue::ProKey},
    {"NucKey",          &Catalogue::NucKey},
    {"DnaKey",          &Catalogue::DnaKey},
    {"TitlePrefix",     &Catalogue::TitlePrefix},
};

constexpr Field<Generator> kGenerator[] = {
    {"PlaceAlpha",    &Generator::PlaceAlpha},
    {"PlaceBeta",     &Generator::PlaceBeta},
    {"PlaceGamma",    &Generator::PlaceGamma},
};

constexpr Field<View> kView[] = {
    {"TurnAngle",     &View::TurnAngle},
    {"ZoomFactor",    &View::ZoomFactor},
    {"ZoomNow",       &View::ZoomNow},
    {"ZoomPrev",      &View::ZoomPrev},
    {"SpinNow",       &View::SpinNow},
    {"SpinPrev",      &View::SpinPrev},
    {"XShiftNow",     &View::XShiftNow},
    {"XShiftPrev",    &View::XShiftPrev},
    {"YShiftNow",     &View::YShiftNow},
    {"YShiftPrev",    &View::YShiftPrev},
    {"PanX",          &View::PanX},
    {"PanY",          &View::PanY},
    {"SurfOffX",      &View::SurfOffX},
    {"SurfOffY",      &View::SurfOffY},
    {"HalfW",         &View::HalfW},
    {"HalfH",         &View::HalfH},
    {"AxisX",         &View::AxisX},
    {"AxisY",         &View::AxisY},
    {"AxisZ",         &View::AxisZ},
    {"PressX",        &View::PressX},
    {"PressY",        &View::PressY},
    {"SavedAxisX",    &View::SavedAxisX},
    {"SavedAxisY",    &View::SavedAxisY},
    {"SavedAxisZ",    &View::SavedAxisZ},
    {"AutoRotateOn",  &View::AutoRotateOn},
};

constexpr Field<Drawing> kDrawing[] = {
    {"DrawFamily",      &Drawing::DrawFamily},
    {"PeptideOn",       &Drawing::PeptideOn},
    {"PlanesOnly",      &Drawing::PlanesOnly},
    {"RibbonOn",        &Drawing::RibbonOn},
    {"CartoonOn",       &Drawing::CartoonOn},
    {"BallsOn",         &Drawing::BallsOn},
    {"LabelsOn",        &Drawing::LabelsOn},
    {"HBondShown",      &Drawing::HBondShown},
    {"NucleicMode",     &Drawing::NucleicMode},
    {"ChainPlanes",     &Drawing::ChainPlanes},
    {"BondWidth",       &Drawing::BondWidth},
    {"PlaneWidth",      &Drawing::PlaneWidth},
    {"BallSize",        &Drawing::BallSize},
    {"OverdrawPass",    &Drawing::OverdrawPass},
    {"FastWire",        &Drawing::FastWire},
    {"DrawName",        &Drawing::DrawName},
    {"LineColour",      &Drawing::LineColour},
    {"BallRadius",      &Drawing::BallRadius},
    {"HalfIsDouble",    &Drawing::HalfIsDouble},
    {"PlaneIndex",      &Drawing::PlaneIndex},
    {"PlaneH",          &Drawing::PlaneH},
    {"PlaneO",          &Drawing::PlaneO},
    {"PlaneCA1",        &Drawing::PlaneCA1},
    {"PlaneCA2",        &Drawing::PlaneCA2},
    {"PlanePaintCount", &Drawing::PlanePaintCount},
};

constexpr Field<Colours> kColours[] = {
    {"PenColour",       &Colours::PenColour},
    {"ColourByElement", &Colours::ColourByElement},
    {"LabelColour",     &Colours::LabelColour},
    {"PlaneColour",     &Colours::PlaneColour},
    {"BackgroundIndex", &Colours::BackgroundIndex},
    {"ColourTarget",    &Colours::ColourTarget},
    {"ColourRefused",   &Colours::ColourRefused},
};

constexpr Field<Stereo> kStereo[] = {
    {"StereoOn",         &Stereo::StereoOn},
    {"EnantiomerOn",     &Stereo::EnantiomerOn},
    {"EnantiomerPairOn", &Stereo::EnantiomerPairOn},
    {"RedGreenOn",       &Stereo::RedGreenOn},
    {"SplitViewOn",      &Stereo::SplitViewOn},
    {"SavedBondWidth",   &Stereo::SavedBondWidth},
    {"SavedPlaneWidth",  &Stereo::SavedPlaneWidth},
    {"SavedPenColour",   &Stereo::SavedPenColour},
    {"SavedColourMode",  &Stereo::SavedColourMode},
    {"PairCells",        &Stereo::PairCells},
    {"PairBCells",       &Stereo::PairBCells},
    {"RedGreenCells",    &Stereo::RedGreenCells},
    {"EnantiomerCells",  &Stereo::EnantiomerCells},
};

constexpr Field<Measure> kMeasure[] = {
    {"PickState",     &Measure::PickState},
    {"PickAtomC",     &Measure::PickAtomC},
    {"PickAtomD",     &Measure::PickAtomD},
    {"MeasureOn",     &Measure::MeasureOn},
    {"AngleResult",   &Measure::AngleResult},
    {"TorsionResult", &Measure::TorsionResult},
};

constexpr Field<Survey> kSurvey[] = {
    {"PhiCount",      &Survey::PhiCount},
    {"PsiCount",      &Survey::PsiCount},
    {"PhiMax",        &Survey::PhiMax},
    {"PsiMax",        &Survey::PsiMax},
    {"PhiMid",        &Survey::PhiMid},
    {"PsiMid",        &Survey::PsiMid},
    {"PhiSpan",       &Survey::PhiSpan},
    {"PsiSpan",       &Survey::PsiSpan},
    {"WidestSpan",    &Survey::WidestSpan},
    {"PlotScale",     &Survey::PlotScale},
    {"SurveyAtom",    &Survey::SurveyAtom},
    {"PlotIndex",     &Survey::PlotIndex},
};

constexpr Field<Recording> kRecording[] = {
    {"GifRecording",  &Recording::GifRecording},
    {"GifFrame",      &Recording::GifFrame},
    {"GifBaseName",   &Recording::GifBaseName},
};

constexpr Field<Shell> kShell[] = {
    {"FromFrontAuthor", &Shell::FromFrontAuthor},
    {"FrontFrame",      &Shell::FrontFrame},
    {"SoundFile",       &Shell::SoundFile},
    {"SoundPath",       &Shell::SoundPath},
};
// clang-format on

template <class Value>
void Append(ObjectLine& line, std::string_view name, const Value& value) {
  if constexpr (std::is_same_v<Value, std::string> || std::is_same_v<Value, NameField>) {
    line.String(name, value);
  } else if constexpr (std::is_same_v<Value, AxisCells>) {
    const int cells[] = {value.X, value.Y, value.Z};
    line.Array(name, 3, [&](std::string& text, int i) { AppendNumber(text, cells[i]); });
  } else {
    line.Number(name, value);
  }
}

template <class Room, std::size_t kCount>
void AppendRoom(ObjectLine& line, const Room& room, const Field<Room> (&fields)[kCount]) {
  for (const Field<Room>& field : fields) {
    std::visit([&](auto where) { Append(line, field.Name, room.*where); }, field.Where);
  }
}

}  // namespace

void AppendStateFields(ObjectLine& line, const Orvane_Desk& desk) {
  AppendRoom(line, desk.molecule, kMolecule);
  AppendRoom(line, desk.selection, kSelection);
  AppendRoom(line, desk.stock, kCatalogue);
  AppendRoom(line, desk.generator, kGenerator);
  AppendRoom(line, desk.view, kView);
  AppendRoom(line, desk.drawing, kDrawing);
  AppendRoom(line, desk.colours, kColours);
  AppendRoom(line, desk.stereo, kStereo);
  AppendRoom(line, desk.measure, kMeasure);
  AppendRoom(line, desk.survey, kSurvey);
  AppendRoom(line, desk.recording, kRecording);
  AppendRoom(line, desk.shell, kShell);
}

}  // namespace orvane
