#include "cli/HRFPlacementReport.h"

#include "cli/HRFListRun.h"
#include "cli/HRFValueText.h"
#include "operations/HRFFileReference+Locations.h"
#include "operations/HRFTransfer.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

/// Relative to the working folder where the file was given so, and stays below its folder.
HRFFileReference shownDestination(const HRFFileReference &given, const HRFFileReference &source,
                                  const HRFFileReference &destination)
{
    const QByteArray folder = parentURL(source).nativePath() + '/';
    const qsizetype nameStart = given.nativePath().lastIndexOf('/') + 1;
    if (!destination.nativePath().startsWith(folder))
        return destination;
    return HRFFileReference::fromNativePath(given.nativePath().first(nameStart)
                                            + destination.nativePath().sliced(folder.size()));
}

QByteArray lineOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

/// What is to become of the file is told beside it.
QString textOf(const HRFError &warning)
{
    return HRFIsFileExistsError(warning) ? warning.recoverySuggestion : warning.fullText();
}

void insertWarnings(QJsonObject &object, const HRFPlannedFile &planned)
{
    QJsonArray texts;
    for (const HRFError &warning : planned.warnings)
        texts.append(textOf(warning));
    if (!texts.isEmpty())
        object.insert(u"warnings"_s, texts);
}

QJsonObject failureObject(const HRFFileReference &given, const HRFError &error)
{
    QJsonObject object = HRFJSONOfPath(given);
    object.insert(u"error"_s, error.fullText());
    return object;
}

} // namespace

void HRFPlacementReport::tellOfPlanned(const HRFMetaFile &record,
                                       const HRFPlannedFile &planned) const
{
    tellWarnings(record, planned);
    print(record, planned);
}

void HRFPlacementReport::tellOfDone(const HRFMetaFile &record, const HRFFileReference &source,
                                    const HRFFileReference &destination) const
{
    print(record, {.source = source, .destination = destination});
}

void HRFPlacementReport::tellOfRefused(const HRFMetaFile &record, const HRFPlannedFile &planned,
                                       bool tellsWarnings) const
{
    if (tellsWarnings)
        tellWarnings(record, planned);
    const HRFError refusal = planned.refusal.value_or(HRFError());
    m_run.fail(record, refusal);
    if (!m_printsJSON)
        return;
    QJsonObject object = failureObject(m_run.givenPath(record), refusal);
    insertWarnings(object, planned);
    m_run.console().print(lineOf(object));
}

void HRFPlacementReport::tellOfFailed(const HRFMetaFile &record, const HRFError &error) const
{
    m_run.fail(record, error);
    printFailure(record, error);
}

void HRFPlacementReport::printFailure(const HRFMetaFile &record, const HRFError &error) const
{
    if (m_printsJSON)
        m_run.console().print(lineOf(failureObject(m_run.givenPath(record), error)));
}

/// Whoever reads JSON finds them there.
void HRFPlacementReport::tellWarnings(const HRFMetaFile &record,
                                      const HRFPlannedFile &planned) const
{
    if (m_printsJSON)
        return;
    const QString path = m_run.givenPath(record).displayPath();
    for (const HRFError &warning : planned.warnings)
        m_run.console().report(path + u": "_s + textOf(warning));
    if (planned.replaces)
        m_run.console().report(
            u"%1: “%2” is replaced"_s.arg(path, planned.destination.displayName()));
}

void HRFPlacementReport::print(const HRFMetaFile &record, const HRFPlannedFile &planned) const
{
    const HRFFileReference given = m_run.givenPath(record);
    const HRFFileReference shown = shownDestination(given, planned.source, planned.destination);
    if (!m_printsJSON) {
        const QString line = HRFConsole::printable(given.displayPath()) + u" -> "_s
            + HRFConsole::printable(shown.displayPath()) + u'\n';
        return m_run.console().print(line.toUtf8());
    }
    QJsonObject object = HRFJSONOfPath(given);
    const QJsonObject place = HRFJSONOfPath(shown);
    object.insert(u"newPath"_s, place.value(u"path"_s));
    if (place.contains(u"pathBytes"_s))
        object.insert(u"newPathBytes"_s, place.value(u"pathBytes"_s));
    if (planned.replaces)
        object.insert(u"replaces"_s, true);
    insertWarnings(object, planned);
    m_run.console().print(lineOf(object));
}
