// The keys of a US keyboard that are neither letters nor blank.
#pragma once

#include "model/KeyEvent.h"

namespace qves {

struct UsKey {
  int Code;
  char Plain;
  char Shifted;
};

inline constexpr UsKey UsKeys[] = {
    {'0', '0', ')'},
    {'1', '1', '!'},
    {'2', '2', '@'},
    {'3', '3', '#'},
    {'4', '4', '$'},
    {'5', '5', '%'},
    {'6', '6', '^'},
    {'7', '7', '&'},
    {'8', '8', '*'},
    {'9', '9', '('},
    {KeySemicolon, ';', ':'},
    {KeyEqual, '=', '+'},
    {KeyComma, ',', '<'},
    {KeyMinus, '-', '_'},
    {KeyPeriod, '.', '>'},
    {KeySlash, '/', '?'},
    {KeyGrave, '`', '~'},
    {KeyLeftBracket, '[', '{'},
    {KeyBackslash, '\\', '|'},
    {KeyRightBracket, ']', '}'},
    {KeyApostrophe, '\'', '"'},
};

}  // namespace qves
