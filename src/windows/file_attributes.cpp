#include "windows/file_attributes.h"

#include "windows/system.h"
#include "windows/wide_text.h"

namespace orby {

unsigned long AttributesOf(const std::string& path) { return GetFileAttributesW(WidePath(path).c_str()); }

bool Exists(unsigned long attributes) { return attributes != INVALID_FILE_ATTRIBUTES; }

bool IsFolder(unsigned long attributes) { return Exists(attributes) && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }

}  // namespace orby
