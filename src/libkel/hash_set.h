#ifndef LIBKEL_HASH_SET_H
#define LIBKEL_HASH_SET_H

#include <absl/container/flat_hash_set.h>

#include <cstddef>
#include <functional>
#include <utility>

/// A hash table that is as it was when an insertion finds no memory. (The library's own is broken by then: it must not
/// grow in place.)
template <class Element, class Hash, class Equal = std::equal_to<Element>>
class HashSet {
 public:
  /// With room for `size` elements.
  explicit HashSet(std::size_t size = 0) : table_(size + size / 4 + kLeastCapacity) {}

  /// False when an equal element was there.
  bool insert(const Element& element) {
    if (table_.size() >= room()) grow();
    return table_.insert(element).second;
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
    absl::flat_hash_set<Element, Hash, Equal> larger(table_.capacity() * 2);
    larger.insert(table_.begin(), table_.end());
    table_ = std::move(larger);
  }

  absl::flat_hash_set<Element, Hash, Equal> table_;
};

#endif
