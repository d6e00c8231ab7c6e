#pragma once

#include "kit/HRFError.h"
#include "kit/HRFFileReference.h"

/// One item that is to be at another place.
struct HRFTransfer
{
    enum class Kind { Copy, Move };

    Kind kind = Kind::Move;
    HRFFileReference source{};
    HRFFileReference destination{};
    QString sourceURL{}; ///< the reference of the source, where it is known
};

/// The code of HRFFileErrorDomain for an errno; 0 where there is none.
int HRFFileErrorCodeForErrno(int failure);

/// What to tell about a transfer that failed with an errno. The error is of HRFFileErrorDomain
/// where that has a code for it, else of HRFPOSIXErrorDomain.
HRFError HRFErrorForTransfer(const HRFTransfer &transfer, int failure);

/// Whether the reason of an error is that something is in the way.
bool HRFIsFileExistsError(const HRFError &error);
