#include "document/HRFRecordFilter.h"

#include "document/HRFRecordColumn.h"
#include "store/HRFValueTransformer.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace {

constexpr QChar firstAccent(u'\u0300');
constexpr QChar lastAccent(u'\u036F');

bool isAccent(QChar character)
{
    return character >= firstAccent && character <= lastAccent;
}

/// A character in lower case and without accents.
QChar foldedCharacter(QChar character)
{
    QString parts = QString(character).normalized(QString::NormalizationForm_D);
    if (parts.size() > 1 && std::all_of(parts.cbegin() + 1, parts.cend(), isAccent))
        character = parts.front();
    return character.toCaseFolded();
}

/// Letters that may have accents stand here; what stands behind is only put into lower case.
constexpr char16_t endOfTable = 0x2000;

std::array<QChar, endOfTable> makeTable()
{
    std::array<QChar, endOfTable> table;
    for (char16_t code = 0; code < endOfTable; ++code)
        table[code] = foldedCharacter(QChar(code));
    return table;
}

void appendFolded(QString &folded, const QString &text)
{
    static const std::array<QChar, endOfTable> table = makeTable();
    const qsizetype start = folded.size();
    folded.resize(start + text.size());
    QChar *end = folded.data() + start;
    for (const QChar character : text)
        if (!isAccent(character))
            *end++ = character.unicode() < endOfTable ? table[character.unicode()]
                                                      : character.toCaseFolded();
    folded.truncate(end - folded.constData());
}

/// Whether an attribute is shown as digits with signs between them, as a duration is. It takes
/// longer to write numbers out than to search all texts of a record.
bool isShownAsDigits(const HRFAttributeDescription &attribute)
{
    const bool isWhole = attribute.isNumeric() && attribute.type <= HRFAttributeType::Integer64;
    const QString transformer = attribute.displayValueTransformerName();
    return isWhole && (transformer.isEmpty() || transformer == HRFValueTransformer::duration);
}

bool isOfDigits(const QString &word)
{
    return std::ranges::all_of(word, [](QChar character) {
        return character.isDigit() || character == u'-' || character == u':';
    });
}

} // namespace

HRFRecordFilter
HRFRecordFilterForWords(const QString &text,
                        const std::vector<const HRFAttributeDescription *> &attributes)
{
    QString foldedText;
    appendFolded(foldedText, text);
    const QStringList words = foldedText.simplified().split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return {};
    std::vector<HRFRecordColumn> columns;
    const bool searchesDigits = std::ranges::any_of(words, isOfDigits);
    for (const HRFAttributeDescription *attribute : attributes)
        if (searchesDigits || !isShownAsDigits(*attribute))
            columns.emplace_back(*attribute);
    return [words, columns, texts = QString()](const HRFMetaFile &file) mutable {
        texts.resize(0); // keeps its room for the next record
        for (const HRFRecordColumn &column : columns) {
            if (const QString *stored = column.storedText(file))
                appendFolded(texts, *stored);
            else
                appendFolded(texts, column.text(file));
            texts.append(u'\n'); // no word goes over it
        }
        return std::ranges::all_of(words,
                                   [&](const QString &word) { return texts.contains(word); });
    };
}
