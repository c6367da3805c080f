#ifndef VQC_CMD_SAVEFILE_ACTIONS_H
#define VQC_CMD_SAVEFILE_ACTIONS_H

#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/places.h"

namespace vqc {

/// A name or value that has been read, and where it stands.
struct Value {
  Text text;
  Range range;
};

/// What the grammar does with what it reads: it fills a document, and notes where everything stands if anybody wants to
/// know.
class Actions {
 public:
  Actions(Document& document, Places* places) : document_(document), places_(places) {}

  Document& document() { return document_; }

  /// The element of that name in a list, made if there is none. Null where no element can have the name.
  template <class List>
  typename List::Element* define(List& list, const Value& name) {
    auto* element = document_.ensure(list, name.text);
    note(element, name.range);
    return element;
  }
  /// Lets a family use the record of that name in a pool.
  template <class References, class Pool>
  void refer(References& references, Pool& pool, const Value& name) {
    note(document_.ensure(references, pool, name.text), name.range);
  }
  template <class Member>
  void set(Member& member, const Member& value, Range range) {
    member = value;
    note(&member, range);
  }

 private:
  void note(const void* part, Range range) {
    if (places_ && part) places_->note(part, range);
  }

  Document& document_;
  Places* places_;
};

}  // namespace vqc

#endif
