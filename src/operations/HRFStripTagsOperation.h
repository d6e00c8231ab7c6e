#pragma once

#include "operations/HRFTagWriteOperation.h"

/// Removes all tags from a file.
class HRFStripTagsOperation : public HRFTagWriteOperation
{
protected:
    [[nodiscard]] HRFResult<void> updateEngine(HRFTagEngine &engine) override;
};
