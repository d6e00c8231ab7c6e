#include "conversions/HRFRememberedPatterns.h"

#include "conversions/HRFPatternString.h"
#include "kit/HRFUserDefaults.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int usualNumber = -1;
constexpr int usualMaximum = 10;
constexpr int greatestMaximum = 254;

QString recentsKey(const QString &autosaveName)
{
    return autosaveName + u".recentPatterns"_s;
}

} // namespace

HRFRememberedPatterns::HRFRememberedPatterns(QString autosaveName)
    : m_autosaveName(std::move(autosaveName)), m_maximumRecents(usualNumber)
{
    if (m_autosaveName.isEmpty())
        return;
    const HRFUserDefaults &defaults = HRFUserDefaults::standard();
    m_patternString = defaults.valueForKey(m_autosaveName).toString();
    m_recentPatterns = defaults.valueForKey(recentsKey(m_autosaveName)).toStringList();
}

void HRFRememberedPatterns::addRecentPattern(const HRFPatternElements &items)
{
    const QString string = HRFPatternStringForItems(items).trimmed();
    if (string.isEmpty())
        return;
    m_recentPatterns.removeAll(string);
    m_recentPatterns.prepend(string);
    m_recentPatterns =
        m_recentPatterns.first(std::min<qsizetype>(m_recentPatterns.size(), maximumRecents()));
    saveRecentPatterns();
}

void HRFRememberedPatterns::clearRecents()
{
    m_recentPatterns.clear();
    saveRecentPatterns();
}

int HRFRememberedPatterns::maximumRecents() const
{
    return m_maximumRecents == usualNumber ? usualMaximum : m_maximumRecents;
}

void HRFRememberedPatterns::setMaximumRecents(int count)
{
    m_maximumRecents = std::clamp(count, usualNumber, greatestMaximum);
}

void HRFRememberedPatterns::save() const
{
    if (!m_autosaveName.isEmpty())
        HRFUserDefaults::standard().setValueForKey(m_patternString, m_autosaveName);
    saveRecentPatterns();
}

void HRFRememberedPatterns::saveRecentPatterns() const
{
    if (!m_autosaveName.isEmpty())
        HRFUserDefaults::standard().setValueForKey(m_recentPatterns, recentsKey(m_autosaveName));
}
