#include "compare/HRFCost.h"

#include <chrono>
#include <sys/resource.h>

namespace {

double seconds(const timeval &time)
{
    constexpr double microsecond = 1e-6;
    return double(time.tv_sec) + double(time.tv_usec) * microsecond;
}

} // namespace

HRFCost HRFCost::spentBy(HRFCostOf processes)
{
    rusage usage = {};
    ::getrusage(processes == HRFCostOf::ThisProcess ? RUSAGE_SELF : RUSAGE_CHILDREN, &usage);
    const std::chrono::duration<double> now = std::chrono::steady_clock::now().time_since_epoch();
    return {now.count(), seconds(usage.ru_utime) + seconds(usage.ru_stime)};
}
