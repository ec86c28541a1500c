// All outside things together, as a shell hands them to the calculator.
#pragma once

#include "platform/Clipboard.h"
#include "platform/FileStore.h"
#include "platform/FixedSizeFileDialog.h"
#include "platform/Notifiers.h"
#include "platform/Outside.h"
#include "platform/SoundPlayer.h"
#include "platform/Spreadsheet.h"
#include "platform/TTS.h"
#include "platform/WindowSystem.h"

namespace qves {

struct Platform {
  TTS& Speech;
  HintNotify& Hints;
  AppWMSpy& WindowMessages;
  WindowSystem& Windows;
  FileStore& Files;
  DirectoryManager& Directories;
  Registry& RegistryStore;
  Locale& Language;
  Clock& Time;
  EventPump& Events;
  RandomSource& Random;
  SoundPlayer& Sounds;
  FixedSizeFileDialog& FileDialog;
  Spreadsheet& Sheet;
  Clipboard& Clip;
};

}  // namespace qves
