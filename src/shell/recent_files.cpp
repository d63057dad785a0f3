#include "shell/recent_files.h"

#include <algorithm>
#include <utility>

#include "core/file_helpers.h"

namespace orby {
namespace {

// A menu takes a single "&" for the mark of a mnemonic.
std::string MenuCaption(std::string_view name) {
  std::string caption;
  for (const char letter : name) caption.append(letter == '&' ? 2 : 1, letter);
  return caption;
}

}  // namespace

bool EnterRecentFile(Program& program) {
  const bool isShort = program.session.settings.ShortRecentFiles == 1;
  const std::string name = isShort ? FileNameFromPath(program, program.project.CurrentFile, FileNameForm::Whole)
                                   : program.project.CurrentFile;
  if (program.session.settings.KeepFileNames == 0) return false;

  auto& [count, entries] = program.session.recentFiles;
  const auto end = entries.begin() + count;
  const auto known =
      std::find_if(entries.begin(), end, [&name](const RecentFiles::Entry& entry) { return entry.LastFile == name; });
  if (known != end) {
    std::swap(*known, entries.front());
    entries.front().LastFileLong = program.project.CurrentFile;
    return true;
  }
  if (count < RecentFiles::Capacity) ++count;
  std::rotate(entries.begin(), entries.begin() + count - 1, entries.begin() + count);
  entries.front() = {name, program.windows.RecentMode, program.project.CurrentFile};
  return true;
}

void ShowRecentFiles(const RecentFiles& recentFiles, ActionArray& menu) {
  bool showsAny = false;
  for (int item = 1; item <= RecentFiles::Capacity; ++item) {
    const std::string& name = recentFiles.Entries[static_cast<std::size_t>(item - 1)].LastFile;
    const bool isShown = item <= recentFiles.MaxLastFiles && !name.empty();
    if (isShown) menu.SetCaption(item, MenuCaption(name));
    menu.SetItemVisible(item, isShown);
    showsAny = showsAny || isShown;
  }
  menu.SetItemVisible(0, showsAny);
}

}  // namespace orby
