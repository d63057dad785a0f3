// Work that is shared out among threads.
#pragma once

#include <cstddef>
#include <functional>

namespace orby {

// Calls `work` for each piece of the numbers from 0 up to `count`: of its first number and the number after its last.
// Pieces have `size` numbers, the last one may have fewer. Returns after all calls. If one throws, no further pieces
// begin, and the exception is thrown here.
//
// threads      0: as many as there are processors
void InPieces(std::size_t count, std::size_t size, const std::function<void(std::size_t, std::size_t)>& work,
              unsigned threads = 0);

}  // namespace orby
