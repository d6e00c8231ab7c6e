#pragma once

#include <QString>

#include <vector>

struct HRFAttributeDescription;

/// One token of a pattern: it stands for an attribute of a file or, when matching, for a kind of
/// text.
class HRFPatternItem
{
public:
    static HRFPatternItem itemWithAttribute(const HRFAttributeDescription &attribute);
    /// An item that stands for no attribute.
    static HRFPatternItem itemWithTitle(const QString &title, const QString &tokenTitle,
                                        const QString &editingString, const QString &regexString);

    /// One item for each attribute of the catalogue, in the order in which they are shown. On the
    /// main thread.
    static std::vector<HRFPatternItem> attributeItems();
    /// The items that only make sense when matching: they consume text and store nothing.
    static std::vector<HRFPatternItem> matchingOnlyItems();
    /// What a pattern that is matched may be made of: both of the above.
    static std::vector<HRFPatternItem> matchingItems();

    /// What menus show.
    const QString &title() const { return m_title; }
    /// The short text drawn inside the token.
    const QString &tokenTitle() const { return m_tokenTitle.isNull() ? m_title : m_tokenTitle; }
    /// What stands between the percent signs of the stored form.
    const QString &editingString() const { return m_editingString; }
    /// A regular expression with one capturing group.
    const QString &regexString() const { return m_regexString; }
    /// Makes the shown text of a value (HRFValueTransformer); empty for none.
    const QString &valueTransformerName() const { return m_valueTransformerName; }
    /// The way from a file's record to the value ("tags.title"); empty for none.
    const QString &metadataKeyPath() const { return m_metadataKeyPath; }
    bool representsNumericValue() const { return m_representsNumericValue; }
    bool isDummy() const { return m_metadataKeyPath.isEmpty(); }

    friend bool operator==(const HRFPatternItem &, const HRFPatternItem &) = default;

private:
    HRFPatternItem() = default;

    bool m_representsNumericValue = false;
    QString m_title;
    QString m_tokenTitle;
    QString m_editingString;
    QString m_regexString;
    QString m_valueTransformerName;
    QString m_metadataKeyPath;
};
