#pragma once

#include <stdexcept>
#include <string>

/// A programming error: a caller broke a function's contract. Nothing but the outermost frame of a
/// thread catches it.
class HRFAssertionFailure : public std::logic_error
{
public:
    /// @param condition the source text of the condition that does not hold
    explicit HRFAssertionFailure(const std::string &condition)
        : std::logic_error("Invalid parameter not satisfying: " + condition)
    {
    }

    /// A failure with a text of its own.
    static HRFAssertionFailure withText(const std::string &text) { return {text, AsItIs()}; }

private:
    struct AsItIs
    {
    };
    HRFAssertionFailure(const std::string &text, AsItIs) : std::logic_error(text) { }
};

/// Throws HRFAssertionFailure with the text @p condition unless @p holds.
inline void HRFRequire(bool holds, const char *condition)
{
    if (!holds)
        throw HRFAssertionFailure(condition);
}

/// Throws HRFAssertionFailure with exactly the given text unless @p holds.
inline void HRFAssert(bool holds, const std::string &text)
{
    if (!holds)
        throw HRFAssertionFailure::withText(text);
}
