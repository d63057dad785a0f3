// Fuzzes the reader of items. The first bytes choose the kind of each read.
#include "files/item_reader.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/runtime_error.h"

namespace {

void Expect(bool holds) {
  if (!holds) std::abort();
}

void ReadOne(orby::ItemReader& reader, unsigned kind) {
  switch (kind % 4) {
    case 0: reader.ReadInteger(); break;
    case 1: reader.ReadSingle(); break;
    case 2: Expect(orby::IsValidUtf8(reader.ReadText())); break;
    default: {
      const std::string line = reader.ReadLine();
      Expect(orby::IsValidUtf8(line));
      Expect(line.find_first_of("\r\n") == std::string::npos);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t KindBytes = 4;
  if (size < KindBytes) return 0;
  const std::string bytes(data + KindBytes, data + size);
  orby::ItemReader reader(bytes);
  // Each read takes at least one byte, so the end is reached within this number of reads.
  for (std::size_t reads = 0; reads <= bytes.size(); ++reads) {
    try {
      ReadOne(reader, data[reads % KindBytes]);
    } catch (const orby::RuntimeError& error) {
      if (error.number() == orby::error_number::PastEndOfFile) return 0;
      Expect(error.number() == orby::error_number::Overflow);
    }
  }
  std::abort();
}
