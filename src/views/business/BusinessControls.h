// The controls of the Business view, in Tab order, which is the reading order.
#pragma once

#include <array>

#include "model/Form.h"
#include "model/Join.h"
#include "views/SharedControls.h"
#include "views/business/BusinessButtons.h"

namespace qves::business {

enum Panel {
  ScreenPanel,
  OptionPanel,
  ClearPanel,
  RegisterPanel,
  PrefixPanel,
  FunctionPanel,
  DigitPanel,
  MemoryPanel,
  OperatorPanel
};

inline constexpr PanelSpec Panels[] = {
    {ScreenPanel, 0, 0, 1, 3}, {OptionPanel, 1, 0, 1, 2}, {ClearPanel, 1, 2},
    {RegisterPanel, 2, 0},     {PrefixPanel, 2, 1},       {FunctionPanel, 2, 2},
    {DigitPanel, 3, 0},        {MemoryPanel, 3, 1},       {OperatorPanel, 3, 2},
};

inline constexpr ListItemSpec InterestBases[] = {{NoMessage, 1563, "360"}, {NoMessage, 1564, "365"}};
inline constexpr ListItemSpec PaymentModes[] = {{1566, 1568}, {1567, 1569}};
inline constexpr ListItemSpec OddPeriods[] = {{1571, 1573}, {1572, 1574}};

inline constexpr auto TextBox = ControlKind::TextBox;
inline constexpr auto ListBox = ControlKind::ListBox;

// name, index, kind, caption, caption message, name message, help message, {panel, row, column, spans},
// traits, items
inline constexpr auto Controls = Join(
    shared::Display(ScreenPanel), shared::MemoryIndicator(ScreenPanel),
    std::to_array<ControlSpec>({
        {"lltINTBase", NoIndex, ListBox, "", 0, 384, 1565, {OptionPanel, 0, 0}, PlainControl, InterestBases},
        {"lltPMTMode", NoIndex, ListBox, "", 0, 385, 1570, {OptionPanel, 0, 1}, PlainControl, PaymentModes},
        {"lltOddPeriod", NoIndex, ListBox, "", 0, 386, 1575, {OptionPanel, 0, 2}, PlainControl, OddPeriods},
    }),
    shared::CorrectionButtons(ClearPanel), shared::ClearButton(ClearPanel),
    std::to_array<ControlSpec>({
        At(Buttons::ClearFinancial, {ClearPanel, 0, 3}),

        At(Buttons::N, {RegisterPanel, 0, 0}),
        At(Buttons::I, {RegisterPanel, 0, 1}),
        At(Buttons::PV, {RegisterPanel, 0, 2}),
        At(Buttons::PMT, {RegisterPanel, 1, 0}),
        At(Buttons::FV, {RegisterPanel, 1, 1}),
        At(Buttons::CF0, {RegisterPanel, 1, 2}),
        At(Buttons::CFj, {RegisterPanel, 2, 0}),
        At(Buttons::Nj, {RegisterPanel, 2, 1}),
        At(Buttons::J, {RegisterPanel, 2, 2}),
        At(Buttons::BeginDate, {RegisterPanel, 3, 0}),
        At(Buttons::EndDate, {RegisterPanel, 3, 1}),
        At(Buttons::Exchange, {RegisterPanel, 3, 2}),

        At(Buttons::Solve, {PrefixPanel, 0, 0}, HelpOnFocus),
        At(Buttons::Recall, {PrefixPanel, 1, 0}, HelpOnFocus),
        At(Buttons::Store, {PrefixPanel, 2, 0}, HelpOnFocus),

        At(Buttons::Npv, {FunctionPanel, 0, 0}),
        At(Buttons::Irr, {FunctionPanel, 0, 1}),
        At(Buttons::Amortization, {FunctionPanel, 0, 2}),
        At(Buttons::Interest, {FunctionPanel, 0, 3}, HelpOnFocus),
        At(Buttons::StraightLine, {FunctionPanel, 1, 0}),
        At(Buttons::SumOfYears, {FunctionPanel, 1, 1}),
        At(Buttons::DecliningBalance, {FunctionPanel, 1, 2}),
        At(Buttons::PercentOfTotal, {FunctionPanel, 1, 3}, HelpOnFocus),
        At(Buttons::BondPrice, {FunctionPanel, 2, 0}),
        At(Buttons::BondYield, {FunctionPanel, 2, 1}),
        At(Buttons::Times12, {FunctionPanel, 2, 2}, HelpOnFocus),
        At(Buttons::PercentDifference, {FunctionPanel, 2, 3}, HelpOnFocus),
        At(Buttons::Days, {FunctionPanel, 3, 0}, HelpOnFocus),
        At(Buttons::DateAfter, {FunctionPanel, 3, 1}, HelpOnFocus),
        At(Buttons::By12, {FunctionPanel, 3, 2}, HelpOnFocus),
    }),
    shared::UpperDigits(DigitPanel),
    std::to_array<ControlSpec>({
        shared::Digit(0, {DigitPanel, 3, 0}),
        At(Buttons::Point, {DigitPanel, 3, 1}),
        At(Buttons::Sign, {DigitPanel, 3, 2}),
    }),
    shared::MemoryButtons(MemoryPanel),
    std::to_array<ControlSpec>({
        At(Buttons::Divide, {OperatorPanel, 0, 0}),
        At(Buttons::Sqrt, {OperatorPanel, 0, 1}),
        At(Buttons::Multiply, {OperatorPanel, 1, 0}),
        At(Buttons::Percent, {OperatorPanel, 1, 1}),
        At(Buttons::Subtract, {OperatorPanel, 2, 0}),
        At(Buttons::Reciprocal, {OperatorPanel, 2, 1}),
        At(Buttons::Add, {OperatorPanel, 3, 0}),
        At(Buttons::Equals, {OperatorPanel, 3, 1}, DefaultButton),
    }));

}  // namespace qves::business
