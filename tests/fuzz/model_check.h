#ifndef FUZZ_MODEL_CHECK_H
#define FUZZ_MODEL_CHECK_H

/// Walks the whole model and requires of every list that it is in order, that no name stands in it twice, that every
/// element is found by its name, and that counts and use counts are right.
void check_model();

/// Whether there is no record of any kind.
bool model_is_empty();

#endif
