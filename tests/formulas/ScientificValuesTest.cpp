// The functions of the Scientific view against references at 15 digits. The references were computed with
// mpmath 1.2.1 at 60 digits, from the double nearest to each argument (an angle: to the angle in radians,
// which is pi x angle / 180 or 200 in doubles, as wanted), then rounded to a double and that to 15 digits.
#include <gtest/gtest.h>

#include "formulas/Numbers.h"
#include "formulas/Trigonometry.h"
#include "model/ArithmeticFault.h"
#include "views/scientific/ScientificOperators.h"

namespace qves {
namespace {

double Compute(std::string_view op, bool inverse, double first, double second) {
  const OperatorRow* row = FindOperator(scientific::Operators, op);
  return (inverse ? row->Inverse : row->Apply)(first, second);
}

struct TrigCase {
  const char* Op;
  AngleUnit Unit;
  bool Inverse;
  bool Hyperbolic;
  double X;
  const char* Text;
};

constexpr TrigCase TrigCases[] = {
    {"sin", Degrees, false, false, 1, "0.0174524064372835"},
    {"sin", Degrees, false, false, 359, "-0.0174524064372844"},
    {"cos", Degrees, false, false, 1, "0.999847695156391"},
    {"cos", Degrees, false, false, 271, "0.0174524064372831"},
    {"tan", Degrees, false, false, 1, "0.0174550649282176"},
    {"tan", Degrees, false, false, 12.5, "0.22169466264294"},
    {"sin", Radians, false, false, 0.5, "0.479425538604203"},
    {"sin", Radians, false, false, 1000, "0.826879540532003"},
    {"cos", Radians, false, false, 0.5, "0.877582561890373"},
    {"cos", Radians, false, false, 1E-05, "0.99999999995"},
    {"tan", Radians, false, false, 0.5, "0.54630248984379"},
    {"tan", Radians, false, false, 1E-10, "1E-10"},
    {"sin", Grads, false, false, 50, "0.707106781186547"},
    {"sin", Grads, false, false, 150, "0.707106781186548"},
    {"cos", Grads, false, false, 50, "0.707106781186548"},
    {"cos", Grads, false, false, 80, "0.309016994374947"},
    {"tan", Grads, false, false, 25, "0.414213562373095"},
    {"tan", Grads, false, false, 75, "2.41421356237309"},
    {"sin", Degrees, true, false, 0.5, "30"},
    {"sin", Degrees, true, false, 1E-08, "5.72957795130823E-07"},
    {"cos", Degrees, true, false, 0.5, "60"},
    {"cos", Degrees, true, false, 0.999, "2.56255873312314"},
    {"tan", Degrees, true, false, 1, "45"},
    {"tan", Degrees, true, false, 1000, "89.9427042395855"},
    {"sin", Radians, true, false, 0.5, "0.523598775598299"},
    {"cos", Radians, true, false, 0.5, "1.0471975511966"},
    {"tan", Grads, true, false, 0.5, "29.5167235300867"},
    {"sin", Radians, true, false, -0.9, "-1.11976951499863"},
    {"cos", Radians, true, false, -0.9, "2.69056584179353"},
    {"tan", Grads, true, false, -0.9, "-46.6524583286852"},
    {"sin", Degrees, false, true, 0.1, "0.100166750019844"},
    {"sin", Degrees, false, true, 1E-07, "1E-07"},
    {"cos", Degrees, false, true, 0.1, "1.0050041680558"},
    {"cos", Degrees, false, true, 20, "242582597.704895"},
    {"tan", Degrees, false, true, 0.1, "0.0996679946249558"},
    {"tan", Degrees, false, true, 0.00001, "9.99999999966667E-06"},
    {"sin", Degrees, true, true, 0.1, "0.0998340788992076"},
    {"sin", Degrees, true, true, 1E-09, "1E-09"},
    {"cos", Degrees, true, true, 1.5, "0.962423650119207"},
    {"cos", Degrees, true, true, 1E+200, "461.210165779369"},
    {"tan", Degrees, true, true, 0.1, "0.100335347731076"},
    {"tan", Degrees, true, true, 1E-08, "1E-08"},
};

struct OperatorCase {
  const char* Op;
  bool Inverse;
  double First;
  double Second;
  const char* Text;
};

constexpr OperatorCase OperatorCases[] = {
    {"ln", false, 0, 2, "0.693147180559945"},
    {"ln", false, 0, 12345.678, "9.42106132129183"},
    {"ln", false, 0, 0.999999, "-1.00000050002909E-06"},
    {"log", false, 0, 2, "0.301029995663981"},
    {"log", false, 0, 12345.678, "4.0915149455092"},
    {"log", false, 0, 1E+300, "300"},
    {"e^x", false, 0, 1, "2.71828182845905"},
    {"e^x", false, 0, 10, "22026.4657948067"},
    {"e^x", false, 0, 1E-10, "1.0000000001"},
    {"log", true, 0, 0.5, "3.16227766016838"},
    {"log", true, 0, -3.3, "0.000501187233627273"},
    {"log", true, 0, 300.25, "1.77827941003892E+300"},
    {"sqrt", false, 0, 2, "1.4142135623731"},
    {"sqrt", false, 0, 0.1, "0.316227766016838"},
    {"sqrt", false, 0, 123456789, "11111.1110605556"},
    {"x^3", true, 0, 2, "1.25992104989487"},
    {"x^3", true, 0, 10, "2.15443469003188"},
    {"x^3", true, 0, 1E+300, "1E+100"},
    {"x^3", false, 0, 1.1, "1.331"},
    {"x^3", false, 0, -2.7, "-19.683"},
    {"x^3", false, 0, 100.5, "1015075.125"},
    {"x^2", false, 0, 1.1, "1.21"},
    {"x^2", false, 0, -2.7, "7.29"},
    {"x^2", false, 0, 1E+150, "1E+300"},
    {"n!", false, 0, 13, "6227020800"},
    {"n!", false, 0, 69, "1.71122452428141E+98"},
    {"n!", false, 0, 170, "7.257415615308E+306"},
    {"1/x", false, 0, 3, "0.333333333333333"},
    {"1/x", false, 0, -0.3, "-3.33333333333333"},
    {"1/x", false, 0, 1E-300, "1E+300"},
    {"x^y", false, 2, 0.5, "1.4142135623731"},
    {"x^y", false, 0.3, 0.7, "0.430511620249934"},
    {"x^y", false, 7, 100, "3.23447650962476E+84"},
    {"x^y", true, 2, 3, "1.25992104989487"},
    {"x^y", true, 1000, 2.5, "15.8489319246111"},
    {"x^y", true, 0.5, -4, "1.18920711500272"},
    {"Lsh", false, 5, 10, "5120"},
    {"Lsh", false, 7, -3, "0.875"},
    {"Lsh", true, 3, 0.5, "2.12132034355964"},
    {"Lsh", true, 5, 10, "0.0048828125"},
};

TEST(ScientificValues, TrigonometricFunctionsAgreeWithTheReferenceTo15Digits) {
  for (const TrigCase& row : TrigCases)
    EXPECT_EQ(NumberToText(TrigFunction(row.Op, row.X, {row.Inverse, row.Hyperbolic, row.Unit})), row.Text)
        << row.Op << (row.Inverse ? " inverse " : " ") << (row.Hyperbolic ? "hyperbolic " : "") << row.X;
}

TEST(ScientificValues, OperatorsAgreeWithTheReferenceTo15Digits) {
  for (const OperatorCase& row : OperatorCases)
    EXPECT_EQ(NumberToText(Compute(row.Op, row.Inverse, row.First, row.Second)), row.Text)
        << row.Op << (row.Inverse ? " inverse of " : " of ") << row.First << " and " << row.Second;
}

}  // namespace
}  // namespace qves
