#include "support/memory_files.h"

#include <algorithm>
#include <utility>

#include "base/paths.h"
#include "base/runtime_error.h"

namespace orby::test {

class MemoryFiles::MemoryOutput : public OutputFile {
 public:
  MemoryOutput(MemoryFiles& owner, std::string path) : owner_(owner), path_(std::move(path)) {}
  void Write(std::string_view bytes) override {
    owner_.Meet(Step::Write);
    owner_.files[path_] += bytes;
  }
  void Close() override { owner_.Meet(Step::Close); }

 private:
  MemoryFiles& owner_;
  std::string path_;
};

// A failed write has written the first half of its bytes.
class MemoryFiles::MemoryInPlace : public OutputFile {
 public:
  MemoryInPlace(MemoryFiles& owner, std::string path) : owner_(owner), path_(std::move(path)) {}
  void Write(std::string_view bytes) override {
    Put(bytes.substr(0, bytes.size() / 2));
    owner_.Meet(Step::Write);
    Put(bytes.substr(bytes.size() / 2));
  }
  void Close() override {
    owner_.Meet(Step::Cut);
    owner_.files[path_].resize(written_);
    owner_.Meet(Step::Flush);
    owner_.onDisk[path_] = owner_.files[path_];
    owner_.Meet(Step::Close);
  }

 private:
  void Put(std::string_view bytes) {
    std::string& file = owner_.files[path_];
    file.replace(std::min(written_, file.size()), bytes.size(), bytes);
    written_ += bytes.size();
  }

  MemoryFiles& owner_;
  std::string path_;
  std::size_t written_ = 0;
};

class MemoryFiles::MemoryInput : public InputFile {
 public:
  MemoryInput(MemoryFiles& owner, std::string bytes) : owner_(owner), bytes_(std::move(bytes)) {}
  std::string Read(std::size_t most) override {
    owner_.Meet(Step::Read);
    const std::string piece = bytes_.substr(place_, most);
    place_ += piece.size();
    owner_.bytesRead += piece.size();
    return piece;
  }

 private:
  MemoryFiles& owner_;
  std::string bytes_;
  std::size_t place_ = 0;
};

class MemoryFiles::MemoryMark : public FileMark {
 public:
  MemoryMark(MemoryFiles& owner, std::string path) : owner_(owner), path_(std::move(path)) {
    owner_.marked.insert(path_);
  }
  ~MemoryMark() override { owner_.marked.erase(path_); }
  MemoryMark(const MemoryMark&) = delete;
  MemoryMark& operator=(const MemoryMark&) = delete;

 private:
  MemoryFiles& owner_;
  std::string path_;
};

void MemoryFiles::Fail(Step step, int errorNumber, int after, int count) {
  failures[step] = {errorNumber, after, count};
}

void MemoryFiles::Mend() { failures.clear(); }

void MemoryFiles::FailNext(int errorNumber, int after) { nextFailure = {errorNumber, after, 1}; }

void MemoryFiles::FailFrom(int errorNumber, int after) { nextFailure = {errorNumber, after, Always}; }

void MemoryFiles::CutPower(int after) { nextFailure = {PowerIsCut, after, 1}; }

bool MemoryFiles::HasFailed() const { return nextFailure.hasFailed; }

Found MemoryFiles::Find(const std::string& path) {
  Meet(Step::Find);
  if (files.contains(path)) return Found::File;
  return folders.contains(WithoutSeparator(path)) ? Found::Folder : Found::Nothing;
}

std::string MemoryFiles::ReadFile(const std::string& path) {
  Meet(Step::Read);
  const auto found = files.find(path);
  if (found == files.end()) throw RuntimeError(error_number::FileNotFound);
  return found->second;
}

std::unique_ptr<InputFile> MemoryFiles::OpenFile(const std::string& path) {
  return std::make_unique<MemoryInput>(*this, ReadFile(path));
}

std::uint64_t MemoryFiles::FileLength(const std::string& path) { return ReadFile(path).size(); }

std::optional<Moment> MemoryFiles::WrittenAt(const std::string& path) {
  const auto found = times.find(path);
  return found == times.end() ? std::nullopt : std::optional(found->second);
}

std::unique_ptr<OutputFile> MemoryFiles::CreateFile(const std::string& path) {
  Meet(Step::Create);
  files[path].clear();
  created.push_back(path);
  return std::make_unique<MemoryOutput>(*this, path);
}

std::unique_ptr<OutputFile> MemoryFiles::OpenInPlace(const std::string& path, std::uint64_t) {
  Meet(Step::Create);
  const bool isNew = files.try_emplace(path).second;
  try {
    Meet(Step::Reserve);
  } catch (const RuntimeError&) {
    if (isNew) files.erase(path);
    throw;
  }
  created.push_back(path);
  return std::make_unique<MemoryInPlace>(*this, path);
}

void MemoryFiles::RemoveFile(const std::string& path) {
  Meet(Step::Remove);
  if (files.erase(path) == 0) throw RuntimeError(error_number::FileNotFound);
  onDisk.erase(path);
}

void MemoryFiles::RenameFile(const std::string& path, const std::string& newPath) {
  Meet(Step::Rename);
  files[newPath] = ReadFile(path);
  files.erase(path);
  // The disk has the new name at once, but the bytes only if they were flushed.
  onDisk[newPath] = onDisk[path];
  onDisk.erase(path);
}

void MemoryFiles::ReplaceFile(const std::string& path, std::string_view bytes) {
  const std::string beside = path + ".tmp";
  try {
    const auto file = CreateFile(beside);
    file->Write(bytes);
    Meet(Step::Flush);
    onDisk[beside] = files[beside];
    file->Close();
    RenameFile(beside, path);
  } catch (const RuntimeError&) {
    files.erase(beside);
    throw;
  }
}

void MemoryFiles::MakeFileLike(const std::string& path, const std::string& model) {
  Meet(Step::Create);
  files[path].clear();
  likeOthers[path] = model;
}

std::string MemoryFiles::ResolveLinks(const std::string& path) {
  const auto link = links.find(path);
  return link == links.end() ? path : link->second;
}

void MemoryFiles::MakeFolder(const std::string& path) {
  Meet(Step::MakeFolder);
  folders.emplace(WithoutSeparator(path));
}

void MemoryFiles::MakePrivateFolder(const std::string& path) {
  MakeFolder(path);
  privateFolders.emplace(WithoutSeparator(path));
}

bool MemoryFiles::CanWriteTo(const std::string& folder) { return !readOnly.contains(WithoutSeparator(folder)); }

std::vector<std::string> MemoryFiles::FilesIn(const std::string& folder) {
  std::vector<std::string> found;
  for (const auto& [path, bytes] : files) {
    const std::string_view name = NameAfterSeparator(path);
    if (path.substr(0, path.size() - name.size()) == WithSeparator(folder)) found.push_back(path);
  }
  return found;
}

std::vector<std::string> MemoryFiles::FoldersIn(const std::string& folder) {
  Meet(Step::ListFolders);
  if (!folders.contains(WithoutSeparator(folder))) throw RuntimeError(error_number::PathNotFound);
  std::vector<std::string> found;
  for (const std::string& path : folders) {
    const std::string_view name = NameAfterSeparator(path);
    if (!name.empty() && path.substr(0, path.size() - name.size()) == WithSeparator(folder)) found.emplace_back(name);
  }
  return found;
}

std::vector<std::string> MemoryFiles::Drives() { return drives; }

void MemoryFiles::SetWorkingFolder(const std::string& path) {
  Meet(Step::EnterFolder);
  workingFolder = path;
}

std::string MemoryFiles::AbsolutePath(const std::string& path) {
  return path.starts_with('/') ? path : workingFolder + "/" + path;
}

std::unique_ptr<FileMark> MemoryFiles::TryMark(const std::string& path) {
  if (marked.contains(path)) return nullptr;
  files.try_emplace(path);
  return std::make_unique<MemoryMark>(*this, path);
}

std::string MemoryFiles::TemporaryFolder() { return "/tmp"; }

std::string MemoryFiles::ProgramFolder() { return "/program"; }

bool MemoryFiles::Failure::IsMet() {
  if (errorNumber == 0 || after-- > 0 || times == 0) return false;
  if (times > 0) --times;
  hasFailed = true;
  return true;
}

void MemoryFiles::Meet(Step step) {
  for (Failure* failure : {&nextFailure, &failures[step]}) {
    if (!failure->IsMet()) continue;
    if (failure->errorNumber == PowerIsCut) throw PowerCut();
    throw RuntimeError(failure->errorNumber);
  }
}

}  // namespace orby::test
