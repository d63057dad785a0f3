// A window for the pages of a compiled help file.
#pragma once

#include <string>

namespace orby {

class HelpViewer {
 public:
  virtual ~HelpViewer() = default;
  // Each Show function opens the only window of the help above the other windows, and returns at once. It returns false
  // when the file at the path is not a help file.
  virtual bool ShowContents(const std::string& path) = 0;
  virtual bool ShowIndex(const std::string& path) = 0;
  // Shows the topic of a form ("frmGraph") or of one of its controls ("frmGraph.Text1"). A control without a topic has
  // that of its form. A form without a topic has the first page.
  virtual bool ShowTopic(const std::string& path, const std::string& topic) = 0;
  // Returns the first sentence about a control ("frmPENVParm.txtCMRR") without showing anything. Empty when the file at
  // the path is not a help file, or has nothing about this control.
  virtual std::string FirstSentence(const std::string& path, const std::string& topic) = 0;
  // Closes the window if it is open.
  virtual void Close() = 0;
};

}  // namespace orby
