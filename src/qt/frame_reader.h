// The description of frames for screen readers.
#pragma once

namespace orby {

// Makes screen readers read each frame by its own title. The toolkit would read a nested frame by the outer title.
void InstallFrameReader();

}  // namespace orby
