// One visitor for std::visit from a function for each alternative.
#pragma once

namespace nerlo::storage {

template <class... Ts>
struct Overloaded : Ts... {
    using Ts::operator()...;
};
template <class... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

} // namespace nerlo::storage
