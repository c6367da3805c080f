#ifndef FUZZ_MODEL_CHECK_H
#define FUZZ_MODEL_CHECK_H

#include "vqc/cmd/model/document.h"

using namespace vqc;

/// Walks a whole document and requires of every list that it is in order, that no name stands in it twice, that every
/// element is found by its name, and that counts and use counts are right.
void check_model(const Document& document);

/// Whether there is no record of any kind.
bool model_is_empty(const Document& document);

#endif
