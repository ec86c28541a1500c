// Depreciation of an asset, by its cost, its salvage value and its life in years, as in the ODF OpenFormula
// standard, section 6.12. All fault for a life that is not above 0.
#pragma once

namespace qves {

/// Straight-line: the same in every year.
double rtcSLN(double cost, double salvage, double life);
/// Sum of the years' digits. Faults for a year outside 1 to life.
double rtcSYD(double cost, double salvage, double life, double year);
/// Declining balance; a factor of 2 is double declining. Never below the salvage value. Faults for a year
/// outside 1 to life and for a factor that is not above 0.
double rtcDDB(double cost, double salvage, double life, double year, double factor);

}  // namespace qves
