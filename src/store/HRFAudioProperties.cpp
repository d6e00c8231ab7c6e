#include "store/HRFAudioProperties.h"

using namespace Qt::StringLiterals;

QString HRFAudioProperties::entityName()
{
    return u"AudioProperties"_s;
}
