#include "store/HRFMetaTags.h"

#include "store/HRFArtworkProperties.h"
#include "store/HRFMetaFile.h"

using namespace Qt::StringLiterals;

namespace {

/// What is derived from whether two others have values.
const QHash<QString, QStringList> &pairs()
{
    static const QHash<QString, QStringList> thePairs = {
        {u"trackNumberAndTotalAreNil"_s, {u"trackNumber"_s, u"trackTotal"_s}},
        {u"discNumberAndTotalAreNil"_s, {u"discNumber"_s, u"discTotal"_s}},
        {u"movementNumberAndTotalAreNil"_s, {u"movementNumber"_s, u"movementTotal"_s}},
    };
    return thePairs;
}

} // namespace

QString HRFMetaTags::entityName()
{
    return u"MetaTags"_s;
}

HRFMetaFile *HRFMetaTags::parentMetaFile() const
{
    return static_cast<HRFMetaFile *>(related(u"parentMetaFile"_s));
}

QVariant HRFMetaTags::valueForKey(const QString &name) const
{
    const auto pair = pairs().constFind(name);
    if (pair == pairs().constEnd())
        return HRFManagedObject::valueForKey(name);
    return std::ranges::none_of(*pair,
                                [this](const QString &key) { return valueForKey(key).isValid(); });
}

QStringList HRFMetaTags::keysForValuesAffecting(const QString &name) const
{
    return pairs().value(name);
}

void HRFMetaTags::setValuesForKeysWithDictionary(const QHash<QString, QVariant> &values)
{
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        if (entry.key() == u"artwork"_s)
            parentMetaFile()->artworkProperties().updateWithBitmapData(entry->toByteArray());
        else
            setValueForKey(*entry, entry.key());
    }
}

bool HRFMetaTags::trackNumberAndTotalAreNil() const
{
    return valueForKey(u"trackNumberAndTotalAreNil"_s).toBool();
}

bool HRFMetaTags::discNumberAndTotalAreNil() const
{
    return valueForKey(u"discNumberAndTotalAreNil"_s).toBool();
}

bool HRFMetaTags::movementNumberAndTotalAreNil() const
{
    return valueForKey(u"movementNumberAndTotalAreNil"_s).toBool();
}
