// The menus of the views: item ids are the messages of their captions.
#pragma once

#include <array>

#include "services/AppSettings.h"

namespace qves {

enum MenuId : int {
  FileMenu = 300,
  ViewMenu = 301,
  ExitItem = 303,
  ScientificItem = 304,
  StatisticsItem = 305,
  StandardItem = 306,
  BusinessItem = 307,
  HelpMenu = 350,
  AboutItem = 351,
  HotKeysItem = 352,
  InverseItem = 353,
};

inline constexpr int NotAvailableMessage = 399;

struct MenuSpec {
  int Title;
  std::array<int, 4> Items;  ///< 0 for none
};

inline constexpr MenuSpec MenuTable[] = {
    {FileMenu, {ExitItem}},
    {ViewMenu, {ScientificItem, StatisticsItem, StandardItem, BusinessItem}},
    {HelpMenu, {AboutItem, HotKeysItem, InverseItem}},
};

/// The CalcView of a View-menu item.
constexpr int CalcViewOf(int item) {
  constexpr int views[] = {ScientificView, StatisticsView, StandardView, BusinessView};
  return views[item - ScientificItem];
}

}  // namespace qves
