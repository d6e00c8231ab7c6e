#pragma once

#include "kit/HRFError.h"

#include <stdexcept>
#include <type_traits>
#include <utility>

/// The value; throws the reason when there is none.
template <class Value> Value HRFOrThrow(HRFResult<Value> result)
{
    if (!result)
        throw std::runtime_error(result.error().fullText().toStdString());
    if constexpr (!std::is_void_v<Value>)
        return *std::move(result);
}
