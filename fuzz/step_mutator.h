#ifndef FUZZ_STEP_MUTATOR_H_
#define FUZZ_STEP_MUTATOR_H_

#include <random>
#include <string>
#include <string_view>

namespace fuzz {

using Random = std::minstd_rand;

/// Changes one thing about a model that a file of the format can have: references are exchanged,
/// statements cut, repeated, moved, renamed and nested in each other, values replaced by odd ones.
/// The text may become longer. An empty one stays as it is.
std::string MutateModel(std::string_view text, Random& random);

/// Statements of one model between those of another.
std::string CrossModels(std::string_view text, std::string_view other, Random& random);

}  // namespace fuzz

#endif  // FUZZ_STEP_MUTATOR_H_
