#include "kit/HRFUserInteraction.h"

#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"

#include <exception>

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

void HRFUserInteraction::presentErrorLater(const HRFError &error, HRFInteractionOwner owner)
{
    HRFMainThread::run([error, owner] { current().presentError(error, owner); },
                       HRFMainThread::Wait::No);
}

void HRFUserInteraction::presentFailures(const std::function<void()> &block)
{
    try {
        block();
    } catch (const std::exception &failure) {
        presentErrorLater({.domain = QString::fromLatin1(HRFLirraErrorDomain),
                           .description = QString::fromLocal8Bit(failure.what())});
    }
}
