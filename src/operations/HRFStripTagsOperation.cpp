#include "operations/HRFStripTagsOperation.h"

#include "tags/HRFTagEngine.h"

HRFResult<void> HRFStripTagsOperation::updateEngine(HRFTagEngine &engine)
{
    return engine.stripTags();
}
