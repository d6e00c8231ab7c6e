#include "kit/HRFUserInteraction.h"

#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"

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

void HRFUserInteraction::presentErrorLater(const HRFError &error)
{
    HRFMainThread::run([error] { current().presentError(error); }, HRFMainThread::Wait::No);
}
