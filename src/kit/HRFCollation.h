#pragma once

#include <QCollator>

/// The order in which people expect names: letters by the user's language without regard to case,
/// numbers by their value ("2" before "10").
namespace HRFCollation {

/// A collator of one's own: one must not be used by two threads at a time.
QCollator naturalOrder();

} // namespace HRFCollation
