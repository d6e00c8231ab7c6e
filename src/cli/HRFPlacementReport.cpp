#include "cli/HRFPlacementReport.h"

#include "cli/HRFListRun.h"
#include "cli/HRFValueText.h"
#include "operations/HRFFileReference+Locations.h"

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

} // namespace

void HRFPlacementReport::tellOfPlanned(const HRFMetaFile &record,
                                       const HRFPlannedFile &planned) const
{
    const QString path = m_run.givenPath(record).displayPath();
    for (const HRFError &warning : planned.warnings)
        if (!m_printsJSON)
            m_run.console().report(path + u": "_s + warning.fullText());
    print(record, planned.source, planned.destination, planned.warnings);
}

void HRFPlacementReport::tellOfDone(const HRFMetaFile &record, const HRFFileReference &source,
                                    const HRFFileReference &destination) const
{
    print(record, source, destination, {});
}

void HRFPlacementReport::tellOfRefused(const HRFMetaFile &record, const HRFError &refusal) const
{
    m_run.fail(record, refusal);
    if (!m_printsJSON)
        return;
    QJsonObject object = HRFJSONOfPath(m_run.givenPath(record));
    object.insert(u"error"_s, refusal.fullText());
    m_run.console().print(lineOf(object));
}

void HRFPlacementReport::print(const HRFMetaFile &record, const HRFFileReference &source,
                               const HRFFileReference &destination,
                               const std::vector<HRFError> &warnings) const
{
    const HRFFileReference given = m_run.givenPath(record);
    const HRFFileReference shown = shownDestination(given, source, destination);
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
    QJsonArray texts;
    for (const HRFError &warning : warnings)
        texts.append(warning.fullText());
    if (!texts.isEmpty())
        object.insert(u"warnings"_s, texts);
    m_run.console().print(lineOf(object));
}
