#include "app/ViewList.h"

#include <array>

#include "services/AppSettings.h"
#include "views/MenuIds.h"
#include "views/business/frmBusiness.h"
#include "views/scientific/frmScientific.h"
#include "views/standard/frmStandard.h"
#include "views/statistics/frmStatistics.h"

namespace qves {
namespace {

template <class ViewForm>
std::unique_ptr<Form> Make(Services& services, ViewFrame& frame) {
  return std::make_unique<ViewForm>(services, frame);
}

constexpr auto Table = std::to_array<ViewRow>({
    {{ScientificView, ScientificItem},
     "scientific",
     "AboutCalculator.rtf",
     "HotKey.rtf",
     "Inv.rtf",
     Make<frmScientific>},
    {{StatisticsView, StatisticsItem},
     "statistics",
     "AboutStat.rtf",
     "StatHotKey.rtf",
     "Inv.rtf",
     Make<frmStatistics>},
    {{StandardView, StandardItem}, "standard", "AboutStd.rtf", "StdHotKey.rtf", "Inv.rtf", Make<frmStandard>},
    {{BusinessView, BusinessItem}, "business", "AboutBsn.rtf", "BsnHotKey.rtf", "Inv.rtf", Make<frmBusiness>},
});

/// No number, menu item or word stands twice, and no row has a gap.
consteval bool IsSound(std::span<const ViewRow> rows) {
  for (const ViewRow& row : rows) {
    if (row.Word.empty() || row.About.empty() || row.HotKeys.empty() || row.Inverse.empty()) return false;
    for (const ViewRow& other : rows)
      if (&other != &row &&
          (other.Identity.CalcView == row.Identity.CalcView ||
           other.Identity.NameMessage == row.Identity.NameMessage || other.Word == row.Word))
        return false;
  }
  return true;
}
static_assert(IsSound(Table));

}  // namespace

std::span<const ViewRow> Views() {
  return Table;
}

}  // namespace qves
