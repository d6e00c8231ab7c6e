#pragma once

#include "store/HRFManagedObject.h"

/// What is known of a file's audio stream; units are those of the engines.
class HRFAudioProperties : public HRFManagedObject
{
public:
    static QString entityName();
    using HRFManagedObject::HRFManagedObject;
};
