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
    {"sin", Degrees, false, false, 10, "0.17364817766693"},
    {"sin", Degrees, false, false, 22.5, "0.38268343236509"},
    {"sin", Degrees, false, false, 36, "0.587785252292473"},
    {"sin", Degrees, false, false, 60, "0.866025403784439"},
    {"sin", Degrees, false, false, 75, "0.965925826289068"},
    {"sin", Degrees, false, false, 123.456, "0.834309433314806"},
    {"sin", Degrees, false, false, -45, "-0.707106781186547"},
    {"sin", Degrees, false, false, 359, "-0.0174524064372844"},
    {"cos", Degrees, false, false, 1, "0.999847695156391"},
    {"cos", Degrees, false, false, 36, "0.809016994374947"},
    {"cos", Degrees, false, false, 45, "0.707106781186548"},
    {"cos", Degrees, false, false, 60, "0.5"},
    {"cos", Degrees, false, false, 72, "0.309016994374947"},
    {"cos", Degrees, false, false, 100, "-0.17364817766693"},
    {"cos", Degrees, false, false, -30, "0.866025403784439"},
    {"cos", Degrees, false, false, 271, "0.0174524064372831"},
    {"tan", Degrees, false, false, 1, "0.0174550649282176"},
    {"tan", Degrees, false, false, 30, "0.577350269189626"},
    {"tan", Degrees, false, false, 60, "1.73205080756888"},
    {"tan", Degrees, false, false, 89, "57.2899616307599"},
    {"tan", Degrees, false, false, -75, "-3.73205080756888"},
    {"tan", Degrees, false, false, 12.5, "0.22169466264294"},
    {"sin", Radians, false, false, 0.5, "0.479425538604203"},
    {"sin", Radians, false, false, 1, "0.841470984807897"},
    {"sin", Radians, false, false, 2, "0.909297426825682"},
    {"sin", Radians, false, false, 3, "0.141120008059867"},
    {"sin", Radians, false, false, 10, "-0.54402111088937"},
    {"sin", Radians, false, false, -1.5, "-0.997494986604054"},
    {"sin", Radians, false, false, 1000, "0.826879540532003"},
    {"cos", Radians, false, false, 0.5, "0.877582561890373"},
    {"cos", Radians, false, false, 1, "0.54030230586814"},
    {"cos", Radians, false, false, 2, "-0.416146836547142"},
    {"cos", Radians, false, false, 3, "-0.989992496600445"},
    {"cos", Radians, false, false, 100, "0.862318872287684"},
    {"cos", Radians, false, false, 1E-05, "0.99999999995"},
    {"tan", Radians, false, false, 0.5, "0.54630248984379"},
    {"tan", Radians, false, false, 1, "1.5574077246549"},
    {"tan", Radians, false, false, 1.5, "14.1014199471717"},
    {"tan", Radians, false, false, -2, "2.18503986326152"},
    {"tan", Radians, false, false, 1E-10, "1E-10"},
    {"sin", Grads, false, false, 50, "0.707106781186547"},
    {"sin", Grads, false, false, 25, "0.38268343236509"},
    {"sin", Grads, false, false, 1, "0.0157073173118207"},
    {"sin", Grads, false, false, 150, "0.707106781186548"},
    {"cos", Grads, false, false, 50, "0.707106781186548"},
    {"cos", Grads, false, false, 33, "0.868631514438191"},
    {"cos", Grads, false, false, 80, "0.309016994374947"},
    {"tan", Grads, false, false, 25, "0.414213562373095"},
    {"tan", Grads, false, false, 75, "2.41421356237309"},
    {"sin", Degrees, true, false, 0.5, "30"},
    {"sin", Degrees, true, false, 0.1, "5.73917047726679"},
    {"sin", Degrees, true, false, -0.3, "-17.4576031237221"},
    {"sin", Degrees, true, false, 0.999, "87.4374412668769"},
    {"sin", Degrees, true, false, 1E-08, "5.72957795130823E-07"},
    {"cos", Degrees, true, false, 0.5, "60"},
    {"cos", Degrees, true, false, 0.1, "84.2608295227332"},
    {"cos", Degrees, true, false, -0.3, "107.457603123722"},
    {"cos", Degrees, true, false, 0.999, "2.56255873312314"},
    {"tan", Degrees, true, false, 1, "45"},
    {"tan", Degrees, true, false, 2, "63.434948822922"},
    {"tan", Degrees, true, false, -0.5, "-26.565051177078"},
    {"tan", Degrees, true, false, 1000, "89.9427042395855"},
    {"sin", Radians, true, false, 0.5, "0.523598775598299"},
    {"cos", Radians, true, false, 0.5, "1.0471975511966"},
    {"tan", Grads, true, false, 0.5, "29.5167235300867"},
    {"sin", Radians, true, false, -0.9, "-1.11976951499863"},
    {"cos", Radians, true, false, -0.9, "2.69056584179353"},
    {"tan", Grads, true, false, -0.9, "-46.6524583286852"},
    {"sin", Degrees, false, true, 0.1, "0.100166750019844"},
    {"sin", Degrees, false, true, 1, "1.1752011936438"},
    {"sin", Degrees, false, true, -2.5, "-6.05020448103979"},
    {"sin", Degrees, false, true, 20, "242582597.704895"},
    {"sin", Degrees, false, true, 1E-07, "1E-07"},
    {"cos", Degrees, false, true, 0.1, "1.0050041680558"},
    {"cos", Degrees, false, true, 1, "1.54308063481524"},
    {"cos", Degrees, false, true, -2.5, "6.13228947966369"},
    {"cos", Degrees, false, true, 20, "242582597.704895"},
    {"tan", Degrees, false, true, 0.1, "0.0996679946249558"},
    {"tan", Degrees, false, true, 1, "0.761594155955765"},
    {"tan", Degrees, false, true, -2.5, "-0.98661429815143"},
    {"tan", Degrees, false, true, 0.00001, "9.99999999966667E-06"},
    {"sin", Degrees, true, true, 0.1, "0.0998340788992076"},
    {"sin", Degrees, true, true, 1, "0.881373587019543"},
    {"sin", Degrees, true, true, -2.5, "-1.6472311463711"},
    {"sin", Degrees, true, true, 1E+200, "461.210165779369"},
    {"sin", Degrees, true, true, 1E-09, "1E-09"},
    {"cos", Degrees, true, true, 1.5, "0.962423650119207"},
    {"cos", Degrees, true, true, 2, "1.31695789692482"},
    {"cos", Degrees, true, true, 100, "5.29829236561048"},
    {"cos", Degrees, true, true, 1E+200, "461.210165779369"},
    {"tan", Degrees, true, true, 0.1, "0.100335347731076"},
    {"tan", Degrees, true, true, 0.5, "0.549306144334055"},
    {"tan", Degrees, true, true, -0.99, "-2.64665241236225"},
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
    {"ln", false, 0, 3, "1.09861228866811"},
    {"ln", false, 0, 10, "2.30258509299405"},
    {"ln", false, 0, 0.1, "-2.30258509299405"},
    {"ln", false, 0, 12345.678, "9.42106132129183"},
    {"ln", false, 0, 1E-300, "-690.775527898214"},
    {"ln", false, 0, 1E+300, "690.775527898214"},
    {"ln", false, 0, 0.999999, "-1.00000050002909E-06"},
    {"log", false, 0, 2, "0.301029995663981"},
    {"log", false, 0, 3, "0.477121254719662"},
    {"log", false, 0, 0.1, "-1"},
    {"log", false, 0, 12345.678, "4.0915149455092"},
    {"log", false, 0, 1E-300, "-300"},
    {"log", false, 0, 1E+300, "300"},
    {"e^x", false, 0, 1, "2.71828182845905"},
    {"e^x", false, 0, -1, "0.367879441171442"},
    {"e^x", false, 0, 0.5, "1.64872127070013"},
    {"e^x", false, 0, 10, "22026.4657948067"},
    {"e^x", false, 0, -20, "2.06115362243856E-09"},
    {"e^x", false, 0, 700, "1.014232054735E+304"},
    {"e^x", false, 0, 1E-10, "1.0000000001"},
    {"log", true, 0, 0.5, "3.16227766016838"},
    {"log", true, 0, -3.3, "0.000501187233627273"},
    {"log", true, 0, 300.25, "1.77827941003892E+300"},
    {"sqrt", false, 0, 2, "1.4142135623731"},
    {"sqrt", false, 0, 3, "1.73205080756888"},
    {"sqrt", false, 0, 5, "2.23606797749979"},
    {"sqrt", false, 0, 0.1, "0.316227766016838"},
    {"sqrt", false, 0, 1E+300, "1E+150"},
    {"sqrt", false, 0, 123456789, "11111.1110605556"},
    {"x^3", true, 0, 2, "1.25992104989487"},
    {"x^3", true, 0, 3, "1.44224957030741"},
    {"x^3", true, 0, 10, "2.15443469003188"},
    {"x^3", true, 0, 0.001, "0.1"},
    {"x^3", true, 0, 1E+300, "1E+100"},
    {"x^3", false, 0, 1.1, "1.331"},
    {"x^3", false, 0, -2.7, "-19.683"},
    {"x^3", false, 0, 100.5, "1015075.125"},
    {"x^2", false, 0, 1.1, "1.21"},
    {"x^2", false, 0, -2.7, "7.29"},
    {"x^2", false, 0, 1E+150, "1E+300"},
    {"n!", false, 0, 13, "6227020800"},
    {"n!", false, 0, 20, "2.43290200817664E+18"},
    {"n!", false, 0, 25, "1.5511210043331E+25"},
    {"n!", false, 0, 69, "1.71122452428141E+98"},
    {"n!", false, 0, 100, "9.33262154439442E+157"},
    {"n!", false, 0, 170, "7.257415615308E+306"},
    {"1/x", false, 0, 3, "0.333333333333333"},
    {"1/x", false, 0, 7, "0.142857142857143"},
    {"1/x", false, 0, -0.3, "-3.33333333333333"},
    {"1/x", false, 0, 1E-300, "1E+300"},
    {"x^y", false, 2, 0.5, "1.4142135623731"},
    {"x^y", false, 10, -2.5, "0.00316227766016838"},
    {"x^y", false, 1.05, 30, "4.32194237515067"},
    {"x^y", false, 0.3, 0.7, "0.430511620249934"},
    {"x^y", false, -2, 9, "-512"},
    {"x^y", false, 7, 100, "3.23447650962476E+84"},
    {"x^y", true, 2, 3, "1.25992104989487"},
    {"x^y", true, 10, 7, "1.38949549437314"},
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
