#ifndef LIBKEL_BLOCKS_H
#define LIBKEL_BLOCKS_H

#include <array>
#include <cstddef>
#include <new>
#include <utility>

#ifdef __SANITIZE_ADDRESS__
#define KEL_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#define KEL_ADDRESS_SANITIZER __has_feature(address_sanitizer)
#else
#define KEL_ADDRESS_SANITIZER 0
#endif

/// What things of one size are cut from at a time.
inline constexpr std::size_t kBlockSize = std::size_t{32} * 1024;

/// A new block, which cannot be given back. What happens when memory is short is up to `allocate`, which may return
/// null.
///
/// The first come from `allocate`. What a large document needs beyond them are parts of huge pages, where the system
/// has those: getting, clearing and finding all the pages of the usual size would be a tenth of its time.
void* new_block(void* (*allocate)(std::size_t));

/// Memory for things of which there are very many, cut from the large blocks of an allocator. Things of one size lie
/// one behind the other in the order in which they were made: nothing stands between them, and walking them reads
/// memory in its order. What is given back is used for others of its size.
template <auto allocate, auto release>
class Blocks {
 public:
  /// Null when the allocator returns nothing.
  static void* take(std::size_t size) {
    return size > kLargest ? allocate(size) : supplies_[units(size)].take(units(size) * kUnit);
  }
  /// `size` is what it was taken with.
  static void give_back(void* memory, std::size_t size) {
    size > kLargest ? release(memory) : supplies_[units(size)].give_back(memory);
  }

 private:
  /// The free memory for things of one size.
  class Supply {
   public:
    void* take(std::size_t size) {
      if (given_back_) return std::exchange(given_back_, given_back_->next);
      if (left_ < size && !begin_block()) return nullptr;
      left_ -= size;
      return std::exchange(next_, next_ + size);
    }
    void give_back(void* memory) { given_back_ = ::new (memory) Piece{given_back_}; }

   private:
    struct Piece {
      Piece* next;
    };

    bool begin_block() {
      next_ = static_cast<char*>(new_block(allocate));
      left_ = next_ ? kBlockSize : 0;
      return next_ != nullptr;
    }

    Piece* given_back_ = nullptr;
    char* next_ = nullptr;
    std::size_t left_ = 0;
  };

  static constexpr std::size_t kUnit = sizeof(void*);
  static constexpr std::size_t kLargest = KEL_ADDRESS_SANITIZER ? 0 : 512;  // the sanitizer is to see each thing itself

  static constexpr std::size_t units(std::size_t size) { return (size + kUnit - 1) / kUnit; }

  inline static std::array<Supply, kLargest / kUnit + 1> supplies_;
};

#endif
