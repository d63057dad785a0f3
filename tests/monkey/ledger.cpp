#include "monkey/ledger.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <stdexcept>

namespace orby::monkey {

Ledger& OpenLedger(const std::string& path, bool isNew) {
  const int file = open(path.c_str(), isNew ? O_RDWR | O_CREAT | O_EXCL : O_RDWR, 0600);
  if (file < 0 || (isNew && ftruncate(file, sizeof(Ledger)) != 0)) throw std::runtime_error("no ledger at " + path);
  void* place = mmap(nullptr, sizeof(Ledger), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
  close(file);
  if (place == MAP_FAILED) throw std::runtime_error("the ledger cannot be mapped");
  return *static_cast<Ledger*>(place);
}

std::string TextOf(const ActLog& log, long acts) {
  std::string text;
  for (long act = acts < ActsShown ? 1 : acts - ActsShown + 1; act <= acts; ++act) {
    text += "  " + std::string(log[static_cast<std::size_t>(act % ActsShown)].View()) + "\n";
  }
  return text;
}

void TellFinding(Ledger& ledger, const std::string& kind, const std::string& text, const ActLog& log, long act) {
  if (ledger.findings[kind]++ > 0) return;
  std::printf("FOUND at act %ld of seed %llu: %s\n%s\nthe acts before it:\n%s\n", act,
              static_cast<unsigned long long>(ledger.seed), kind.c_str(), text.c_str(), TextOf(log, act).c_str());
  std::fflush(stdout);
}

}  // namespace orby::monkey
