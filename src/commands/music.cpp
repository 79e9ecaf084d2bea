#include "commands/music.h"

#include <array>

namespace orvane {
namespace {

// Below the stock folder; tune n is row n - 1.
constexpr std::array<std::string_view, 9> kStockTunes = {
    R"(3d_pdb\sounds\music1.wav)", R"(3d_pdb\sounds\music2.wav)", R"(3d_pdb\sounds\music3.wav)",
    R"(3d_pdb\sounds\music4.wav)", R"(3d_pdb\sounds\music5.wav)", R"(3d_pdb\sounds\music6.wav)",
    R"(3d_pdb\sounds\music7.wav)", R"(3d_pdb\sounds\music8.wav)", R"(3d_pdb\sounds\music9.wav)",
};

std::string WithSeparator(std::string folder) {
  if (!folder.ends_with('\\') && !folder.ends_with('/')) folder += '/';
  return folder;
}

}  // namespace

std::string StockSoundFolder(const Orvane_Desk& desk) {
  return WithSeparator(desk.platform.ProgramFolder());
}

void PlayStockSound(Orvane_Desk& desk) {
  desk.shell.SoundPath = StockSoundFolder(desk) + desk.shell.SoundFile;
  PlayWave(desk);
  desk.main.Timer1.Enabled = true;
}

int PlayWave(Orvane_Desk& desk) {
  if (desk.platform.SoundIsOpen()) desk.platform.SoundClose();
  const int error_number = desk.platform.SoundOpen(desk.shell.SoundPath);
  if (error_number != 0) {
    ReportSoundError(desk, error_number);
    return 0;
  }
  desk.platform.SoundPlay();
  return desk.platform.SoundLength() / 1000;
}

void ReportSoundError(Orvane_Desk& desk, int error_number) {
  // Kept as it has always been, letter for letter.
  desk.platform.WarningBox("ÎØÃ ÛíÑ ãÚÑæÝ (" + std::to_string(error_number) + ").");
}

void PMSC_Click(Orvane_Desk& desk, int tune) {
  desk.shell.SoundFile = std::string(kStockTunes.at(static_cast<std::size_t>(tune - 1)));
  PlayStockSound(desk);
}

void OpMfL_Click(Orvane_Desk& desk) {
  desk.main.P_Dir_Holder.Visible = true;
  desk.main.P_Dir_Holder.BringToFront();
  for (FileList* list : {&desk.main.Drive1, &desk.main.Dir1, &desk.main.File1}) {
    list->Visible = true;
    list->Enabled = true;
  }
}

void StMsc_Click(Orvane_Desk& desk) {
  desk.platform.SoundStop();
  desk.platform.SoundClose();
}

void Drive1_Change(Orvane_Desk& desk) {
  desk.main.Dir1.Path = desk.main.Drive1.Path.Get();
  Dir1_Change(desk);
}

void Dir1_Change(Orvane_Desk& desk) {
  desk.main.File1.FileName = "";
  desk.main.File1.Path = desk.main.Dir1.Path.Get();
}

void File1_DblClick(Orvane_Desk& desk) {
  desk.shell.SoundPath = WithSeparator(desk.main.File1.Path) + desk.main.File1.FileName.Get();
  PlayWave(desk);
  desk.main.P_Dir_Holder.Visible = false;
}

}  // namespace orvane
