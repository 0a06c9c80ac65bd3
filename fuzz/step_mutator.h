#ifndef FUZZ_STEP_MUTATOR_H_
#define FUZZ_STEP_MUTATOR_H_

#include <random>
#include <string>
#include <string_view>

namespace fuzz {

using Random = std::minstd_rand;

/// Returns the text of a model with one to three random changes: references are exchanged;
/// statements are cut, removed, repeated, moved, renamed or nested in each other; values are
/// replaced by unusual ones. The text may become longer. Empty text stays empty.
std::string MutateModel(std::string_view text, Random& random);

/// Returns `text` with up to 12 consecutive statements of `other` inserted.
std::string CrossModels(std::string_view text, std::string_view other, Random& random);

}  // namespace fuzz

#endif  // FUZZ_STEP_MUTATOR_H_
