#include "store/HRFSystemFile.h"

#include "store/HRFMainContext.h"
#include "store/HRFMetaFile.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/// Where the extension begins, without its dot; -1 when there is none. A leading dot hides a file.
qsizetype extensionOf(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? dot + 1 : -1;
}

} // namespace

QString HRFSystemFile::entityName()
{
    return u"SystemFile"_s;
}

HRFMetaFile *HRFSystemFile::parentMetaFile() const
{
    return static_cast<HRFMetaFile *>(related(u"parentMetaFile"_s));
}

QString HRFSystemFile::fileName() const
{
    return valueForKey(u"fileName"_s).toString();
}

void HRFSystemFile::setFileName(const QString &name)
{
    const QString stored = validatedFileName(name);
    const qsizetype extension = extensionOf(stored);
    HRFManagedObject::setValueForKey(stored, u"fileName"_s);
    HRFManagedObject::setValueForKey(extension < 0 ? QString() : stored.mid(extension),
                                     u"fileExtension"_s);
}

QString HRFSystemFile::fileExtension() const
{
    return valueForKey(u"fileExtension"_s).toString();
}

void HRFSystemFile::setFileExtension(const QString &extension)
{
    const QString name = fileName();
    const qsizetype present = extensionOf(name);
    const QString base = present < 0 ? name : name.left(present - 1);
    setFileName(extension.isEmpty() ? base : base + u'.' + extension);
}

QString HRFSystemFile::filePath() const
{
    return valueForKey(u"filePath"_s).toString();
}

QString HRFSystemFile::displayFileName() const
{
    return fileName().replace(u':', u'/');
}

QVariant HRFSystemFile::valueForKey(const QString &name) const
{
    if (name == u"displayFileName"_s)
        return displayFileName();
    if (name == u"filePath"_s)
        if (const auto folder = parentMetaFile()->folder())
            return *folder;
    return HRFManagedObject::valueForKey(name);
}

void HRFSystemFile::setValueForKey(const QVariant &value, const QString &name)
{
    struct Rename
    {
        QString key;
        void (HRFSystemFile::*set)(const QString &);
        const char *actionName;
    };
    static const Rename renames[] = {
        {u"fileName"_s, &HRFSystemFile::setFileName, QT_TRANSLATE_NOOP("HRFSystemFile", "Rename")},
        {u"fileExtension"_s, &HRFSystemFile::setFileExtension,
         QT_TRANSLATE_NOOP("HRFSystemFile", "Change Extension")},
    };
    for (const Rename &rename : renames) {
        if (rename.key != name)
            continue;
        (this->*rename.set)(value.toString());
        auto *main = dynamic_cast<HRFMainContext *>(&context());
        if (main && main->isUndoRegistrationEnabled() && !main->isUndoingOrRedoing())
            main->setUndoActionName(
                QCoreApplication::translate("HRFSystemFile", rename.actionName));
        return;
    }
    HRFManagedObject::setValueForKey(value, name);
}

QStringList HRFSystemFile::keysForValuesAffecting(const QString &name) const
{
    const bool isDerived = name == u"displayFileName"_s || name == u"fileExtension"_s;
    return isDerived ? QStringList{u"fileName"_s} : QStringList();
}

void HRFSystemFile::updateAttributesForItemAtURL(const HRFFileReference &file)
{
    if (const auto facts = HRFFileFacts::of(file))
        updateAttributes(*facts);
}

void HRFSystemFile::updateAttributes(const HRFFileFacts &facts)
{
    HRFManagedObject::setValueForKey(facts.filePath, u"filePath"_s);
    setValueForKey(qlonglong(facts.fileSize), u"fileSize"_s);
    setValueForKey(facts.dateCreated.isValid() ? facts.dateCreated : QVariant(), u"dateCreated"_s);
    setValueForKey(facts.dateModified, u"dateModified"_s);
}

QString HRFSystemFile::validatedFileName(const QString &proposedName)
{
    return QString(proposedName).replace(u'/', u':');
}
