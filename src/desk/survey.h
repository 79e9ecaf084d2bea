// The backbone torsions of the loaded structure, and how they are spread over the plot.
#pragma once

#include <array>
#include <memory>

#include "raster/picture.h"
#include "runtime/failure.h"
#include "runtime/int16.h"

namespace orvane {

// Rows 0 to 500, checked; row 0 is not used.
class SurveyRows {
 public:
  double& operator[](int row) { return rows_[Checked(row)]; }
  const double& operator[](int row) const { return rows_[Checked(row)]; }

 private:
  static std::size_t Checked(int row) {
    if (row < 0 || row > 500) FailSubscript(row);
    return static_cast<std::size_t>(row);
  }
  std::array<double, 501> rows_{};
};

struct Survey {
  SurveyRows PhiList, PsiList;  // degrees; the plot pass overwrites a row with its pixel position
  int PhiCount = 0, PsiCount = 0;
  double PhiMax = 0, PsiMax = 0;  // largest value seen
  double PhiMid = 0, PsiMid = 0;  // smallest value seen, then the middle of the range
  double PhiSpan = 0, PsiSpan = 0;
  double WidestSpan = 0;
  double PlotScale = 0;  // 1 / WidestSpan
  int SurveyAtom = 0;
  Int16 PlotIndex;

  std::array<std::shared_ptr<const Bitmap>, 3> ram;  // clean copies of the map pictures
};

}  // namespace orvane
