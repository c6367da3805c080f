#ifndef LIBKEL_HASH_SET_H
#define LIBKEL_HASH_SET_H

#include <absl/container/flat_hash_set.h>
#include <absl/hash/hash.h>
#include <absl/strings/string_view.h>

#include <cstddef>
#include <functional>
#include <string_view>
#include <utility>

namespace vqc {

inline std::size_t hash_of(std::string_view text) { return absl::HashOf(absl::string_view(text.data(), text.size())); }

inline std::size_t hash_of_address(const void* address) { return absl::HashOf(address); }

/// A hash table that is as it was when an insertion finds no memory. (The library's own is broken by then: it must not
/// grow in place.)
template <class Element, class Hash, class Equal = std::equal_to<Element>>
class HashSet {
 public:
  /// With room for `size` elements.
  explicit HashSet(std::size_t size = 0, const Hash& hash = Hash(), const Equal& equal = Equal())
      : table_(size + size / 4 + kLeastCapacity, hash, equal) {}

  /// False when an equal element was there.
  bool insert(const Element& element) {
    if (filled_ >= room()) grow();
    const bool is_new = table_.insert(element).second;
    filled_ += is_new ? 1 : 0;
    return is_new;
  }
  template <class Key>
  void erase(const Key& key) {
    table_.erase(key);
  }
  template <class Key>
  bool contains(const Key& key) const {
    return table_.contains(key);
  }
  /// The element that equals the key, or null.
  template <class Key>
  const Element* find(const Key& key) const {
    const auto found = table_.find(key);
    return found == table_.end() ? nullptr : &*found;
  }

 private:
  static constexpr std::size_t kLeastCapacity = 16;

  /// How many elements the table takes, at the least, before it grows.
  std::size_t room() const { return table_.capacity() / 8 * 7; }

  void grow() {
    absl::flat_hash_set<Element, Hash, Equal> larger(table_.size() * 2 + kLeastCapacity, table_.hash_function(),
                                                     table_.key_eq());
    larger.insert(table_.begin(), table_.end());
    table_ = std::move(larger);
    filled_ = table_.size();
  }

  absl::flat_hash_set<Element, Hash, Equal> table_;
  std::size_t filled_ = 0;  // places that an element has, or has had: what is erased may leave its place unusable
};

}  // namespace vqc

#endif
