// A save is cut off or meets a failing disk at each of its steps. Afterwards the project is on the disk, either as last
// saved or as last typed.

#include <cstdio>
#include <map>

#include "files/backups.h"
#include "files/recovery_file.h"
#include "main_window_fixture.h"

namespace orby::test {
namespace {

using Files = std::map<std::string, std::string>;

constexpr int MoreThanAllSteps = 200;

enum class Danger { PowerCut, FailsOnce, FailsFromThenOn };

struct Row {
  const char* name;
  Danger danger;
  bool hasBackups;
  const char* target;  // the file that is saved over
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

// An edited project whose save is cut off or fails at a step.
class EndangeredSave {
 public:
  explicit EndangeredSave(const Row& row) : row_(row) {
    if (row.hasBackups) program_.session.folders.ProgramData = ProgramDataPath;
    program_.session.settings.KeepFileNames = 0;
    Files& files = platform_.files.files;
    files[Panel3] = DesignAt(725);
    files[Panel4] = DesignAt(980);
    old_ = files[row.target];
    window_.Open();
    window_.Dropped(Panel3);
    platform_.windows.onModal = [](Form& form) {
      dynamic_cast<TextBox&>(*form.Find("txtDepthofCover")).SetText("810");
      dynamic_cast<Button&>(*form.Find("Command2")).Press();
    };
    window_.mnuEditItem.ClickItem(EditItem::Parameters);
    // Everything that was written before the save is already on the disk.
    platform_.files.onDisk = files;
    platform_.boxes.answers.assign(9, BoxResult::Cancel);
    platform_.fileDialogs.answers = {row.target};
  }

  // Saves and fails after this many steps. Returns false if the save has no such step.
  bool RunUntil(int after) {
    MemoryFiles& files = platform_.files;
    switch (row_.danger) {
      case Danger::PowerCut: files.CutPower(after); break;
      case Danger::FailsOnce: files.FailNext(error_number::DiskFull, after); break;
      case Danger::FailsFromThenOn: files.FailFrom(error_number::PermissionDenied, after); break;
    }
    try {
      window_.mnuFileItem.ClickItem(row_.target == Panel3 ? FileItem::Save : FileItem::SaveAs);
    } catch (const PowerCut&) {
      powerIsCut_ = true;
    }
    return files.HasFailed();
  }

  // Returns the possible contents of the disk: the flushed files, and after a power cut possibly also the unflushed
  // ones.
  std::vector<const Files*> Images() const {
    if (!powerIsCut_) return {&platform_.files.files};
    return {&platform_.files.onDisk, &platform_.files.files};
  }

  // Returns where these files hold the last saved or last typed state; empty if it is lost.
  std::string Found(const Files& files) const {
    const auto held = files.find(row_.target);
    const std::string bytes = held == files.end() ? "" : held->second;
    if (bytes == old_) return "file, as last saved";
    if (IsKept(files))
      return bytes == ProjectFileBytes(program_.project) ? "file and Backups" : "Backups, as last saved";
    if (bytes == ProjectFileBytes(program_.project)) return "file, as last typed";
    const auto recovery = files.find(RecoveryPath);
    const auto project = recovery == files.end() ? std::nullopt : ReadRecovery(recovery->second);
    return project && project->WorkParms.Place.DepthofCover == 810 ? "recovery, as last typed" : "";
  }

  // Returns true if the backups hold the old bytes.
  bool IsKept(const Files& files) const {
    return std::ranges::any_of(files, [&](const auto& file) {
      return file.first.starts_with("/home/user/Documents/Orby/Backups/") && file.second == old_;
    });
  }

  bool HasTemporaryFiles() const {
    return std::ranges::any_of(platform_.files.files, [](const auto& file) {
      return file.first.ends_with("~tmpdesc.tmp") || file.first.ends_with(".tmp.tmp");
    });
  }

  bool IsSaved() const { return program_.project.FileSaved; }
  bool FileIsTheProject() const { return platform_.files.files.at(row_.target) == ProjectFileBytes(program_.project); }
  bool FileIsOld() const { return platform_.files.files.at(row_.target) == old_; }

 private:
  std::string DesignAt(Single depth) {
    Program other(platform_.AsPlatform());
    StartApart(other, nullptr);
    other.project.WorkParms.Place.DepthofCover = depth;
    return ProjectFileBytes(other.project);
  }

  const Row& row_;
  RecordingPlatform platform_;
  Program program_ = StartedProgram(platform_);
  MainWindow window_{program_};
  std::string old_;
  bool powerIsCut_ = false;
};

class SaveInDanger : public testing::TestWithParam<Row> {};

TEST_P(SaveInDanger, LosesNoDataAtAnyStep) {
  const Row& row = GetParam();
  std::map<std::string, int> table;
  int after = 0;
  for (; after < MoreThanAllSteps; ++after) {
    EndangeredSave save(row);
    if (!save.RunUntil(after)) break;
    for (const Files* image : save.Images()) {
      const std::string found = save.Found(*image);
      EXPECT_NE(found, "") << "step " << after;
      ++table[found];
    }
    if (row.danger == Danger::PowerCut) continue;
    EXPECT_EQ(save.IsSaved(), save.FileIsTheProject()) << "step " << after;
    EXPECT_FALSE(save.HasTemporaryFiles() && row.danger == Danger::FailsOnce) << "step " << after;
    EXPECT_TRUE(save.IsSaved() || save.FileIsOld() || row.danger == Danger::FailsFromThenOn) << "step " << after;
  }
  EXPECT_GT(after, row.hasBackups ? 15 : 5) << "steps were met";
  EXPECT_LT(after, MoreThanAllSteps);
  for (const auto& [found, count] : table) std::printf("  | %-40s | %3d | %-24s |\n", row.name, count, found.c_str());
}

INSTANTIATE_TEST_SUITE_P(
    Dangers, SaveInDanger,
    testing::Values(Row{"power cut", Danger::PowerCut, true, Panel3.c_str()},
                    Row{"power cut, over another project", Danger::PowerCut, true, Panel4.c_str()},
                    Row{"power cut, no Backups", Danger::PowerCut, false, Panel3.c_str()},
                    Row{"disk full once", Danger::FailsOnce, true, Panel3.c_str()},
                    Row{"disk full once, over another project", Danger::FailsOnce, true, Panel4.c_str()},
                    Row{"disk full once, no Backups", Danger::FailsOnce, false, Panel3.c_str()},
                    Row{"read-only from then on", Danger::FailsFromThenOn, true, Panel3.c_str()},
                    Row{"read-only from then on, over another", Danger::FailsFromThenOn, true, Panel4.c_str()},
                    Row{"read-only from then on, no Backups", Danger::FailsFromThenOn, false, Panel3.c_str()}));

}  // namespace
}  // namespace orby::test
