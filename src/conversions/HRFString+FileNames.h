#pragma once

#include <QString>

#include <bitset>

/// A set of UTF-16 code units.
using HRFCharacterSet = std::bitset<0x10000>;

/// The text without any code unit that belongs to the set.
QString HRFStringByStrippingCharactersInSet(const QString &string, const HRFCharacterSet &set);
/// With ":" for every "/", as names are kept.
QString HRFSanitizedFileNameString(const QString &string);
/// Without the dots that it begins with.
QString HRFUnDotPrefixedString(const QString &string);
