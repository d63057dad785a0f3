// A save on a real disk is killed or meets a full or read-only disk at each of its calls. Afterwards the project is on
// the disk, either as last saved or as last typed.

#include <gmock/gmock.h>
#include <sys/fsuid.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

#include "disk_calls.h"
#include "files/project_writer.h"
#include "files/recovery_file.h"
#include "machine/disk_files.h"
#include "shell/main_window.h"
#include "shell/start_up.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

namespace fs = std::filesystem;

// Exit codes of the child process.
constexpr int Saved = 0;
constexpr int NotSaved = 1;
constexpr int MishapDidNotHappen = 2;  // and the project was saved

// A program with an open project on the disk and an unsaved change.
class Session {
 public:
  explicit Session(const TemporaryFolder& folder) : disk_(folder.Path()) {
    program_.session.folders.ProgramData = folder.At("data/");
    program_.session.folders.ProgramTemporary = folder.At("data/Temp/");
    program_.session.options.ShowInputScreenOnLoad = 0;
    program_.session.settings.ShowDisclaim = 0;
    program_.session.settings.KeepFileNames = 0;
    StartApart(program_, nullptr);
    window_.Open();
    window_.Dropped(folder.At("panel3.orb"));
    platform_.windows.onModal = [](Form& form) {
      dynamic_cast<TextBox&>(*form.Find("txtDepthofCover")).SetText("810");
      dynamic_cast<Button&>(*form.Find("Command2")).Press();
    };
    window_.mnuEditItem.ClickItem(EditItem::Parameters);
    platform_.boxes.answers.assign(9, BoxResult::Cancel);
  }

  bool Save() {
    window_.mnuFileItem.ClickItem(FileItem::Save);
    return program_.project.FileSaved;
  }

 private:
  RecordingPlatform platform_;
  DiskFiles disk_;
  Program program_{platform_.AsPlatformWith(disk_)};
  MainWindow window_{program_};
};

std::string DesignAt(Single depth) {
  RecordingPlatform platform;
  Program program(platform.AsPlatform());
  StartApart(program, nullptr);
  program.project.WorkParms.Place.DepthofCover = depth;
  return ProjectFileBytes(program.project);
}

// Returns the bytes that the session saves without a mishap.
std::string SavedDesign() {
  static const std::string bytes = [] {
    const TemporaryFolder folder;
    fs::create_directories(folder.At("data/Temp"));
    folder.Store("panel3.orb", DesignAt(725));
    EXPECT_TRUE(Session(folder).Save());
    return folder.Read("panel3.orb");
  }();
  return bytes;
}

// Returns only the lines of the design. A description that could not be normalised is saved unchanged.
std::string DataOf(const std::string& file) { return file.substr(std::min(file.find("##EndDesc##"), file.size())); }

bool IsTypedState(const std::string& recovery) {
  const auto project = ReadRecovery(recovery);
  return project && project->WorkParms.Place.DepthofCover == 810;
}

class EndangeredSave : public testing::Test {
 protected:
  EndangeredSave() {
    fs::create_directories(folder.At("data/Temp"));
    folder.Store("panel3.orb", old);
  }

  // Saves in a child process.
  template <class Prepare>
  int SaveInChild(const Prepare& prepare) {
    const pid_t child = fork();
    if (child == 0) {
      Session session(folder);
      prepare();
      const bool isSaved = session.Save();
      const bool happened = !EndMishap().empty();
      _exit(!isSaved ? NotSaved : happened ? Saved : MishapDidNotHappen);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }

  // Returns where the last saved or the last typed state is; empty if it is lost.
  std::string Found() const {
    const std::string file = folder.Read("panel3.orb");
    if (file == old) return "file, as last saved";
    if (file.starts_with("ORBY_105") && DataOf(file) == DataOf(typed)) return "file, as last typed";
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(folder.At("data/Backups"), none)) {
      const std::string name = entry.path().filename();
      if (folder.Read("data/Backups/" + name) == old) return "Backups, as last saved";
    }
    for (const auto& entry : fs::directory_iterator(folder.At("data/Temp"), none)) {
      const std::string name = entry.path().filename();
      if (IsTypedState(folder.Read("data/Temp/" + name))) return "recovery, as last typed";
    }
    return {};
  }

  TemporaryFolder folder;
  const std::string old = DesignAt(725);
  const std::string typed = SavedDesign();
};

struct Danger {
  const char* name;
  int systemError;
  bool lasts;
};

void PrintTo(const Danger& danger, std::ostream* out) { *out << danger.name; }

// Runs a save for each of its calls, each time in a new folder.
class SaveOnADisk : public testing::TestWithParam<Danger> {};

struct Case : EndangeredSave {
  void TestBody() override {}
  using EndangeredSave::folder;
  using EndangeredSave::Found;
  using EndangeredSave::old;
  using EndangeredSave::SaveInChild;
  using EndangeredSave::typed;
};

TEST_P(SaveOnADisk, LosesNoDataAtAnyCall) {
  const Danger& danger = GetParam();
  std::map<std::string, int> table;
  constexpr int MoreThanAllCalls = 200;
  int after = 0;
  for (; after < MoreThanAllCalls; ++after) {
    Case run;
    const int end = run.SaveInChild([&] { BeginMishap({after, danger.systemError, danger.lasts}); });
    if (end == MishapDidNotHappen) break;

    const std::string found = run.Found();
    EXPECT_NE(found, "") << danger.name << " at call " << after;
    EXPECT_EQ(end == -SIGKILL, danger.systemError == 0) << "call " << after;
    EXPECT_TRUE(end != Saved || found == "file, as last typed") << "call " << after;
    ++table[found];
  }
  EXPECT_GT(after, 20) << "calls were met";
  EXPECT_LT(after, MoreThanAllCalls) << "the save came to its end";
  for (const auto& [found, count] : table)
    std::printf("  | %-28s | %3d | %-24s |\n", danger.name, count, found.c_str());
}

INSTANTIATE_TEST_SUITE_P(Dangers, SaveOnADisk,
                         testing::Values(Danger{"killed", 0, false}, Danger{"disk full once", ENOSPC, false},
                                         Danger{"disk full from then on", ENOSPC, true},
                                         Danger{"limit on file sizes", EFBIG, true},
                                         Danger{"read-only from then on", EROFS, true},
                                         Danger{"disk fails once", EIO, false}));

class FileSizeLimit : public EndangeredSave, public testing::WithParamInterface<int> {};

TEST_P(FileSizeLimit, LosesNoData) {
  const int end = SaveInChild([] {
    std::signal(SIGXFSZ, SIG_IGN);
    const auto bytes = static_cast<rlim_t>(GetParam());
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
  });

  EXPECT_EQ(end, NotSaved);
  EXPECT_EQ(Found(), "file, as last saved");
}

INSTANTIATE_TEST_SUITE_P(Bytes, FileSizeLimit, testing::Values(0, 1, 100, 500));

TEST_F(EndangeredSave, AReadOnlyFileStaysUnchanged) {
  fs::permissions(folder.At("panel3.orb"), fs::perms(0444));
  fs::permissions(folder.Path(), fs::perms(0755));

  const int end = SaveInChild([] { setfsuid(65534); });

  EXPECT_EQ(end, NotSaved);
  EXPECT_EQ(folder.Read("panel3.orb"), old);
}

}  // namespace
}  // namespace orby::test
