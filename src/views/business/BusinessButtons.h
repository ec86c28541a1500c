// The buttons of the Business view: what each is called in its tables.
#pragma once

#include "engine/Buttons.h"

namespace qves::business::Buttons {

using namespace qves::Buttons;

// name, index, caption, name message (0: the caption is the name), help message
inline constexpr ControlSpec DateAfter = ButtonSpec("cmdBiOp", 4, "date", 1546, 1547);
inline constexpr ControlSpec PercentOfTotal = ButtonSpec("cmdBiOp", 5, "%T", 1548, 1549);
inline constexpr ControlSpec PercentDifference = ButtonSpec("cmdBiOp", 6, "d%", 1550, 1551);

inline constexpr ControlSpec Interest = ButtonSpec("cmdUOp", 4, "INT", 1522, 1523);
inline constexpr ControlSpec Times12 = ButtonSpec("cmdUOp", 5, "x12", 1524, 1525);
inline constexpr ControlSpec By12 = ButtonSpec("cmdUOp", 6, "/12", 1526, 1527);
inline constexpr ControlSpec Npv = ButtonSpec("cmdUOp", 7, "NPV", 1528, 1529);
inline constexpr ControlSpec Irr = ButtonSpec("cmdUOp", 8, "IRR", 1530, 1531);
inline constexpr ControlSpec DecliningBalance = ButtonSpec("cmdUOp", 9, "DB", 1532, 1533);
inline constexpr ControlSpec StraightLine = ButtonSpec("cmdUOp", 10, "SL", 1534, 1535);
inline constexpr ControlSpec SumOfYears = ButtonSpec("cmdUOp", 11, "SY", 1536, 1537);
inline constexpr ControlSpec Amortization = ButtonSpec("cmdUOp", 12, "AMT", 1538, 1539);
inline constexpr ControlSpec BondPrice = ButtonSpec("cmdUOp", 13, "Price", 1540, 1541);
inline constexpr ControlSpec BondYield = ButtonSpec("cmdUOp", 14, "YTM", 1542, 1543);
inline constexpr ControlSpec Days = ButtonSpec("cmdUOp", 15, "DYS", 1544, 1545);

inline constexpr ControlSpec N = ButtonSpec("cmdFinancial", 0, "n", 1500, 1501);
inline constexpr ControlSpec I = ButtonSpec("cmdFinancial", 1, "i", 1502, 1503);
inline constexpr ControlSpec PV = ButtonSpec("cmdFinancial", 2, "PV", 1504, 1505);
inline constexpr ControlSpec PMT = ButtonSpec("cmdFinancial", 3, "PMT", 1506, 1507);
inline constexpr ControlSpec FV = ButtonSpec("cmdFinancial", 4, "FV", 1508, 1509);
inline constexpr ControlSpec CF0 = ButtonSpec("cmdFinancial", 5, "CF0", 1510, 1511);
inline constexpr ControlSpec CFj = ButtonSpec("cmdFinancial", 6, "CFj", 1512, 1513);
inline constexpr ControlSpec Nj = ButtonSpec("cmdFinancial", 7, "Nj", 1514, 1515);
inline constexpr ControlSpec J = ButtonSpec("cmdFinancial", 8, "j", 1516, 1517);
inline constexpr ControlSpec BeginDate = ButtonSpec("cmdFinancial", 9, "beg", 1518, 1519);
inline constexpr ControlSpec EndDate = ButtonSpec("cmdFinancial", 10, "end", 1520, 1521);

inline constexpr ControlSpec Solve = ButtonSpec("cmdCal", NoIndex, "CAL", 1558, 1559);
inline constexpr ControlSpec Recall = ButtonSpec("cmdRecall", NoIndex, "RCL", 1554, 1555);
inline constexpr ControlSpec Store = ButtonSpec("cmdSTO", NoIndex, "STO", 1556, 1557);
inline constexpr ControlSpec Exchange = ButtonSpec("cmdXchange", NoIndex, "x<>y", 1560, 1561);
inline constexpr ControlSpec ClearFinancial = ButtonSpec("cmdMemory", 5, "CF", 1552, 1553);

}  // namespace qves::business::Buttons
