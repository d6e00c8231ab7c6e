#include "app/HRFPreferenceControl.h"

#include "app/HRFInputError.h"
#include "app/HRFPreferenceTable.h"
#include "kit/HRFUserDefaults.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFPreferences", text);
}

QString keyOf(const HRFPreferenceRow &row)
{
    return QString::fromLatin1(row.key);
}

/// Makes a widget show the setting now, and whenever it changes.
template <class Show> void follow(const QString &key, QWidget *widget, const Show &show)
{
    QObject::connect(&HRFUserDefaults::standard(), &HRFUserDefaults::valueChanged, widget,
                     [key, show](const QString &changedKey) {
                         if (changedKey == key)
                             show();
                     });
    show();
}

QWidget *makeSwitch(const HRFPreferenceRow &row, QWidget *parent)
{
    const bool isInverted = row.kind == HRFPreferenceKind::InvertedSwitch;
    auto *box = new QCheckBox(tr(row.label), parent);
    const QString key = keyOf(row);
    follow(key, box,
           [=] { box->setChecked(HRFUserDefaults::standard().boolForKey(key) != isInverted); });
    QObject::connect(box, &QCheckBox::clicked, box, [=](bool isOn) {
        HRFUserDefaults::standard().setValueForKey(isOn != isInverted, key);
    });
    return box;
}

QWidget *makeChoice(const HRFPreferenceRow &row, QWidget *parent)
{
    auto *menu = new QComboBox(parent);
    for (const HRFPreferenceChoice &choice : row.choices)
        menu->addItem(tr(choice.label), QString::fromLatin1(choice.value));
    const QString key = keyOf(row);
    follow(key, menu, [=] {
        menu->setCurrentIndex(
            menu->findData(HRFUserDefaults::standard().stringForKey(key).value_or(QString())));
    });
    QObject::connect(menu, &QComboBox::activated, menu,
                     [=] { HRFUserDefaults::standard().setValueForKey(menu->currentData(), key); });
    return menu;
}

void chooseFolder(QLineEdit *field, const QString &title, const std::function<void()> &store)
{
    auto *panel = new QFileDialog(field->window(), title, field->text());
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    QObject::connect(panel, &QFileDialog::fileSelected, field, [=](const QString &folder) {
        field->setText(folder);
        store();
    });
    panel->open();
}

/// What is no folder stays in the field, to be put right, and does not become the setting.
QWidget *makeFolder(const HRFPreferenceRow &row, QWidget *parent)
{
    auto *field = new QLineEdit(parent);
    field->setClearButtonEnabled(true);
    field->setPlaceholderText(tr("None"));
    field->setAccessibleDescription(tr(row.explanation));
    auto *error = new HRFInputError(*field);
    const auto check = [=] {
        const QString folder = field->text();
        const bool isThere = QDir::isAbsolutePath(folder) && QDir(folder).exists();
        error->setReason(folder.isEmpty() || isThere ? QString()
                                                     : tr("There is no folder with this path."));
        return error->reason().isEmpty();
    };
    const QString key = keyOf(row);
    follow(key, field, [=] {
        field->setText(HRFUserDefaults::standard().stringForKey(key).value_or(QString()));
        check();
    });
    const auto store = [=] {
        if (!check())
            return error->explain();
        const QString folder = field->text();
        HRFUserDefaults::standard().setValueForKey(folder.isEmpty() ? QVariant() : folder, key);
    };
    QObject::connect(field, &QLineEdit::textEdited, error, [=] { error->setReason({}); });
    QObject::connect(field, &QLineEdit::editingFinished, field, store);
    return field;
}

QPushButton *makeFolderButton(QLineEdit *field, const QString &title)
{
    auto *button = new QPushButton(tr("Choose…"), field->parentWidget());
    button->setAutoDefault(false);
    button->setAccessibleName(title);
    QObject::connect(button, &QPushButton::clicked, field, [=] {
        chooseFolder(field, title, [field] { Q_EMIT field->editingFinished(); });
    });
    return button;
}

QWidget *makeInput(const HRFPreferenceRow &row, QWidget *parent)
{
    switch (row.kind) {
    case HRFPreferenceKind::Choice:
        return makeChoice(row, parent);
    case HRFPreferenceKind::Folder:
        return makeFolder(row, parent);
    default:
        return makeSwitch(row, parent);
    }
}

QLabel *makeExplanation(const HRFPreferenceRow &row, const QWidget *input, QWidget *parent)
{
    constexpr double scale = 0.9;
    constexpr double opacity = 0.75;
    auto *label = new QLabel(tr(row.explanation), parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    label->setFont(font);
    label->setWordWrap(true);
    auto *dimmed = new QGraphicsOpacityEffect(label);
    dimmed->setOpacity(opacity);
    label->setGraphicsEffect(dimmed);
    if (qobject_cast<const QCheckBox *>(input)) // below its text
        label->setIndent(input->style()->pixelMetric(QStyle::PM_IndicatorWidth)
                         + input->style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing));
    return label;
}

QHBoxLayout *makeLine(const HRFPreferenceRow &row, QWidget *input, QWidget *parent)
{
    auto *line = new QHBoxLayout;
    if (!qobject_cast<QCheckBox *>(input)) {
        auto *label = new QLabel(tr("%1:").arg(tr(row.label)), parent);
        label->setBuddy(input);
        line->addWidget(label);
    }
    line->addWidget(input);
    if (auto *field = qobject_cast<QLineEdit *>(input))
        line->addWidget(makeFolderButton(field, tr(row.label)));
    else
        line->addStretch();
    return line;
}

} // namespace

QWidget *HRFMakePreferenceControl(const HRFPreferenceRow &row, QWidget *parent)
{
    constexpr int gap = 3;
    auto *control = new QWidget(parent);
    QWidget *input = makeInput(row, control);
    input->setObjectName(keyOf(row));
    input->setAccessibleName(tr(row.label));
    if (input->accessibleDescription().isEmpty())
        input->setAccessibleDescription(tr(row.explanation));
    auto *layout = new QVBoxLayout(control);
    layout->setContentsMargins({});
    layout->setSpacing(gap);
    layout->addLayout(makeLine(row, input, control));
    layout->addWidget(makeExplanation(row, input, control));
    return control;
}
