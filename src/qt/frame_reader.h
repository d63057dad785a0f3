// What screen readers are told of a frame.
#pragma once

namespace orby {

// Frames are read out from now on by their own titles. The toolkit reads out a frame inside another by the outer title.
void InstallFrameReader();

}  // namespace orby
