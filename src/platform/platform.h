// Everything outside the program, as interfaces that the program receives at its start. Each call that blocks, shows,
// stores or fetches something goes through it.
#pragma once

#include "platform/clipboard.h"
#include "platform/documents.h"
#include "platform/downloads.h"
#include "platform/file_dialogs.h"
#include "platform/file_system.h"
#include "platform/file_types.h"
#include "platform/help_viewer.h"
#include "platform/message_boxes.h"
#include "platform/picture_files.h"
#include "platform/printer.h"
#include "platform/surroundings.h"
#include "platform/windows.h"

namespace orby {

struct Platform {
  MessageBoxes& boxes;
  FileSystem& files;
  FileDialogs& fileDialogs;
  Windows& windows;
  Fonts& fonts;
  Locale& locale;
  Clock& clock;
  UserFolders& userFolders;
  Clipboard& clipboard;
  Printer& printer;
  Documents& documents;
  HelpViewer& help;
  Downloads& downloads;
  FileTypes& fileTypes;
  PictureFiles& pictures;
};

}  // namespace orby
