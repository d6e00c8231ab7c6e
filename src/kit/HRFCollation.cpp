#include "kit/HRFCollation.h"

#include <QLocale>

namespace {

/// The C locale compares bytes and knows no numbers.
QLocale collationLocale()
{
    const QLocale locale = QLocale::system();
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

} // namespace

QCollator HRFCollation::naturalOrder()
{
    QCollator collator(collationLocale());
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}
