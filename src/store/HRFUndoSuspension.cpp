#include "store/HRFUndoSuspension.h"

#include "kit/HRFMainThread.h"
#include "store/HRFMainContext.h"

namespace {

void setRegistration(const std::weak_ptr<HRFMainContext> &weakContext, bool isEnabled)
{
    HRFMainThread::run(
        [&] {
            const auto context = weakContext.lock();
            if (!context)
                return;
            context->processPendingChanges();
            if (isEnabled)
                context->enableUndoRegistration();
            else
                context->disableUndoRegistration();
        },
        HRFMainThread::Wait::Yes);
}

} // namespace

HRFUndoSuspension::HRFUndoSuspension(std::weak_ptr<HRFMainContext> context)
    : m_context(std::move(context))
{
    setRegistration(m_context, false);
}

HRFUndoSuspension::~HRFUndoSuspension()
{
    HRFMainThread::runLoggingFailures([this] { setRegistration(m_context, true); });
}
