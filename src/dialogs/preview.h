// What a report reads in place of what is committed.
#pragma once

namespace orby {

// The target is what is shown for as long as this lives, however the report ends, and then what it was.
template <class Group>
class Preview {
 public:
  Preview(Group& target, const Group& shown) : target_(target), committed_(target) { target_ = shown; }
  ~Preview() { target_ = committed_; }
  Preview(const Preview&) = delete;
  Preview& operator=(const Preview&) = delete;

 private:
  Group& target_;
  Group committed_;
};

}  // namespace orby
