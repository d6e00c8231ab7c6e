#include "kit/HRFUserInteraction.h"

#include "kit/HRFAssert.h"

namespace {

HRFUserInteraction *currentInteraction = nullptr;

} // namespace

HRFUserInteraction &HRFUserInteraction::current()
{
    HRFRequire(currentInteraction, "HRFUserInteraction::current");
    return *currentInteraction;
}

void HRFUserInteraction::setCurrent(HRFUserInteraction *interaction)
{
    currentInteraction = interaction;
}
