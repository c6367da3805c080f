#ifndef VQC_CMD_LOOKUP_DIRECTORY_H
#define VQC_CMD_LOOKUP_DIRECTORY_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "vqc/cmd/model/document.h"
#include "vqc/cmd/model/part.h"

namespace vqc {

/// All names in a document, to be found by what is typed of them: those of its records, and of the procedures that it
/// names. It stays as the document was when it was made.
class Directory {
 public:
  explicit Directory(const Document& document);

  struct Hits {
    std::vector<Spot> best;
    std::size_t count = 0;  // of all
  };
  /// What has a name that matches, best first, and not more than `most` of it. Of names that match as well the shorter
  /// comes first. Nothing matches where nothing is typed. To go on from what was typed last is quicker.
  Hits find(std::string_view typed, std::size_t most);

 private:
  class Maker;
  using Key = std::uint64_t;  // the rank of a name, its size and its number: the lowest are the best

  /// A name, which any number of things may have.
  struct Name {
    std::string_view text;
    std::uint32_t end = 0;  // of its places, which begin where those of the name before end
  };
  struct Place {
    Part part;
    Text of;
  };

  std::size_t begin_of(std::size_t name) const { return name == 0 ? 0 : names_[name - 1].end; }
  static std::size_t number_of(Key key) { return static_cast<std::uint32_t>(key); }
  void match(std::string_view typed);
  Spot spot_at(std::size_t name, std::size_t place) const;

  std::vector<Name> names_;
  std::vector<Place> places_;
  std::string typed_;      // last
  std::vector<Key> hits_;  // of that
  std::shared_ptr<const void> texts_;
};

}  // namespace vqc

#endif
