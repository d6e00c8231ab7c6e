#include "kit/HRFApplication.h"

HRFApplication &HRFApplication::shared()
{
    static HRFApplication theApplication;
    return theApplication;
}
