#pragma once

#include "cli/HRFCommandOptions.h"
#include "kit/HRFError.h"

#include <QJsonObject>

class HRFTagEngine;

/// What becomes of a file when tags are set, told by an engine that is never saved. What it holds
/// then need not be what is set: ratings have a largest value.
struct HRFTagPreview
{
    struct Change
    {
        HRFTagKey key;
        QVariant before;
        QVariant after;
    };

    std::vector<Change> changes{}; ///< by key, without tags that stay as they are
    HRFResult<void> outcome{}; ///< why the file could not be saved

    static HRFTagPreview of(HRFTagEngine &engine, const std::vector<HRFTagChange> &changes);

    /// A line for each change.
    QByteArray text() const;
    /// {key: {"old", "new"}}, null for nothing.
    QJsonObject json() const;
};
