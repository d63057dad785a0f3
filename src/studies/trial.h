// One support of a design that is tried with changes. Only the figures of that support are computed again.
#pragma once

#include "design/catalog_lists.h"
#include "studies/studied_support.h"

namespace orby {

// Keeps references to the catalogs.
class Trial {
 public:
  Trial(const Design& design, const Catalogs& catalogs, const StudiedSupport& support);

  // The design that is tried. Only the pattern of the support may be changed.
  Design& Tried() { return design_; }
  const Design& Tried() const { return design_; }

  // Returns the judgements on the support as it now is.
  Assessment Judge() noexcept;

 private:
  Design design_;
  const Catalogs& catalogs_;
  StudiedSupport support_;
  std::size_t system_;
  Figures figures_;
};

}  // namespace orby
