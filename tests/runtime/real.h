// A number of any length, by GNU MPFR.
#pragma once

#include <mpfr.h>

namespace orvane {

struct Real {
  explicit Real(mpfr_prec_t bits) { mpfr_init2(Value, bits); }
  ~Real() { mpfr_clear(Value); }
  Real(const Real&) = delete;
  Real& operator=(const Real&) = delete;

  mpfr_t Value;
};

}  // namespace orvane
