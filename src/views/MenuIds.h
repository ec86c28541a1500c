// The menus of the views: item ids are the messages of their captions.
#pragma once

#include <array>

namespace qves {

enum MenuId : int {
  FileMenu = 300,
  ViewMenu = 301,
  ImportItem = 302,
  ExitItem = 303,
  ScientificItem = 304,
  StatisticsItem = 305,
  StandardItem = 306,
  BusinessItem = 307,
  HelpMenu = 350,
  AboutItem = 351,
  HotKeysItem = 352,
  InverseItem = 353,
  AboutStatisticsItem = 354,
  StatisticsHotKeysItem = 355,
  ImportTableItem = 1820,
};

struct MenuSpec {
  int Title;
  std::array<int, 4> Items;  ///< 0 for none; those of the View menu are the views
};

/// The menus of a view that has nothing of its own in them.
inline constexpr MenuSpec MenuTable[] = {
    {FileMenu, {ExitItem}},
    {ViewMenu, {}},
    {HelpMenu, {AboutItem, HotKeysItem, InverseItem}},
};

}  // namespace qves
