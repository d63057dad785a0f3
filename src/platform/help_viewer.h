// What shows the pages of a compiled help file.
#pragma once

#include <string>

namespace orby {

class HelpViewer {
 public:
  virtual ~HelpViewer() = default;
  // Each shows the one window of the help, above what is in use, and returns at once; false when the file at the path
  // is no help file.
  virtual bool ShowContents(const std::string& path) = 0;
  virtual bool ShowIndex(const std::string& path) = 0;
  // The topic of a form ("frmGraph") or of one of its controls ("frmGraph.Text1"). A control without a topic of its own
  // has that of its form, a form without one the first page.
  virtual bool ShowTopic(const std::string& path, const std::string& topic) = 0;
  // Closes the window, if there is one.
  virtual void Close() = 0;
};

}  // namespace orby
