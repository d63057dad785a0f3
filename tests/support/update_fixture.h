// A program with an update server, on an in-memory platform.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "core/program.h"
#include "support/recording_platform.h"

namespace orby::test {

inline const std::string UpdateFiles = "https://updates.example.org/wp-content/uploads/2020/04/";
inline const std::string VersionFileAt = "/home/user/Documents/MyStrataDesk/ORBY/orby_version.txt";
inline const std::string DownloadsFolder = "/home/user/Downloads/";
inline const std::string SumOfSetup = "9f86d081884c7d659a2feaa0c55ad015a3bf4f1b2b0b822cd15d6c15b0f00a08";

struct UpdateTest : testing::Test {
  UpdateTest() {
    program.session.UpdateServer = "https://updates.example.org";
    program.session.folders.Group = "/home/user/Documents/MyStrataDesk/";
    program.session.folders.ProgramData = "/home/user/Documents/MyStrataDesk/ORBY/";
    program.session.IniFilePath = "/home/user/Documents/MyStrataDesk/ORBY/ORBY.INI";
    program.EndAtOnce = [this] { ++ended; };
    platform.clock.today = {2023, 7, 25};
  }

  ScriptedDownloads::Asked& LastAsked() { return platform.downloads.asked.back(); }

  // Completes the last fetch with these bytes.
  void Bring(const std::string& bytes, const std::string& sha256 = {}) {
    platform.files.files[LastAsked().request.path] = bytes;
    platform.downloads.sums[LastAsked().request.path] = sha256;
    LastAsked().events.Finished({FetchEnd::Done, sha256});
  }
  void Fail(FetchEnd end) { LastAsked().events.Finished({end, {}}); }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  int ended = 0;
};

}  // namespace orby::test
