#pragma once

#include "tags/HRFTagKey.h"
#include "tags/HRFTagValue.h"

#include <array>

/// How an engine reads and writes a property that is not plain text in its format.
template <class Engine> struct HRFFieldHandler
{
    HRFTagKey key = {};
    QVariant (*read)(const Engine &engine, HRFTagKey key) = nullptr;
    /// Null for what cannot be set.
    void (*write)(Engine &engine, HRFTagKey key, const QVariant &value) = nullptr;
};

/// Handlers by key; nullptr where a property needs none.
template <class Engine>
using HRFFieldHandlerTable = std::array<const HRFFieldHandler<Engine> *, HRFTagKeyCount>;

template <class Engine, std::size_t Count>
consteval HRFFieldHandlerTable<Engine>
HRFHandlersByKey(const HRFFieldHandler<Engine> (&handlers)[Count])
{
    HRFFieldHandlerTable<Engine> table{};
    for (const HRFFieldHandler<Engine> &handler : handlers)
        table[std::size_t(handler.key)] = &handler;
    return table;
}
