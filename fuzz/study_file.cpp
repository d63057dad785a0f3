// Fuzzes the settings of studies: what is read is written so that it reads back as the same study, and is checked
// without an error.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "files/study_json.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  const orby::StudyReading reading = orby::ReadStudy(bytes);
  Require(reading.Stored.has_value() == reading.Fault.empty());
  if (!reading.Stored) return 0;

  const std::string written = orby::StudyBytes(*reading.Stored);
  const orby::StudyReading again = orby::ReadStudy(written);

  Require(again.Stored.has_value());
  Require(again.Stored->Settings == reading.Stored->Settings);
  Require(orby::StudyBytes(*again.Stored) == written);
  static_cast<void>(orby::FaultOf(reading.Stored->Settings));
  return 0;
}
