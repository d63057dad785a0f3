// The platform of the desktop program. Services that do not depend on the toolkit are passed in.
#pragma once

#include "platform/platform.h"
#include "qt/documents.h"
#include "qt/downloads.h"
#include "qt/file_dialogs.h"
#include "qt/help_viewer.h"
#include "qt/message_boxes.h"
#include "qt/picture_files.h"
#include "qt/printer.h"
#include "qt/surroundings.h"
#include "qt/windows.h"

namespace orby {

struct Desktop {
  Desktop(FileSystem& filesGiven, FileTypes& fileTypesGiven) : files(filesGiven), fileTypes(fileTypesGiven) {}

  QtMessageBoxes boxes;
  FileSystem& files;
  QtFileDialogs fileDialogs;
  QtWindows windows;
  QtFonts fonts;
  QtLocale locale;
  QtClock clock;
  QtUserFolders userFolders;
  QtClipboard clipboard;
  QtPrinter printer;
  QtDocuments documents;
  QtHelpViewer help;
  QtDownloads downloads;
  FileTypes& fileTypes;
  QtPictureFiles pictures;

  Platform AsPlatform() {
    return {boxes,     files,   fileDialogs, windows, fonts,     locale,    clock,   userFolders,
            clipboard, printer, documents,   help,    downloads, fileTypes, pictures};
  }
};

}  // namespace orby
