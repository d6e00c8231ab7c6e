#pragma once

#include <QStringList>

/// The candidate that a misspelt name most likely means; empty without candidates.
QString HRFNearestName(const QString &name, const QStringList &candidates);
