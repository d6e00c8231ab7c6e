#pragma once

#include "app/HRFListColumn.h"
#include "document/HRFArrayController.h"

/// The value that records have in a column, when they agree.
struct HRFCommonValue
{
    QVariant value{}; ///< as it is edited; invalid for none
    QString text{}; ///< as it is read
    bool isSame = true;
    qsizetype recordCount = 0;

    /// Looks at records until two differ.
    static HRFCommonValue of(const HRFListColumn &column,
                             const HRFArrayController::Records &records);
};
