#pragma once

#include "conversions/HRFConversionContext.h"
#include "conversions/HRFPatternItem.h"

#include <variant>
#include <vector>

/// Literal text, or a token.
using HRFPatternElement = std::variant<QString, HRFPatternItem>;
using HRFPatternElements = std::vector<HRFPatternElement>;

/// Literal text and tokens in their order, and how they are to be rendered.
class HRFPattern
{
public:
    explicit HRFPattern(HRFPatternElements items, const HRFConversionContext &context = {})
        : m_items(std::move(items)), m_context(context)
    {
    }

    const HRFPatternElements &items() const { return m_items; }
    const HRFConversionContext &context() const { return m_context; }

private:
    HRFPatternElements m_items;
    HRFConversionContext m_context;
};
