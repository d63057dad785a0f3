// Opens documents in other programs, chosen by the rules of the desktop.
#pragma once

#include "platform/documents.h"

namespace orby {

class QtDocuments : public Documents {
 public:
  bool Open(const std::string& path) override;
  bool Start(const std::string& program, const std::vector<std::string>& arguments) override;
  bool RunToEnd(const std::string& program, const std::vector<std::string>& arguments) override;
  void OpenSheet(const Sheet& sheet, const std::string& path) override;
};

}  // namespace orby
