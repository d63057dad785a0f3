#include "studies/trial.h"

namespace orby {

Trial::Trial(const Design& design, const Catalogs& catalogs, const StudiedSupport& support)
    : design_(design),
      catalogs_(catalogs),
      support_(support),
      system_(SystemIndex(support.What)),
      figures_(Analyze(design, catalogs)) {}

Assessment Trial::Judge() noexcept {
  switch (support_.Where) {
    case Opening::Primary: RefreshPrimary(figures_, design_, catalogs_); return {JudgePrimaryBolts(design_, figures_)};
    case Opening::Entries: RefreshEntrySystem(figures_, design_, catalogs_, system_); break;
    case Opening::Intersections: RefreshIntersectionSystem(figures_, design_, catalogs_, system_); break;
  }
  return {JudgeSupport(design_, figures_, support_.Where, system_)};
}

}  // namespace orby
