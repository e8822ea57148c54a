// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/settings_page.h"

#include "models/table_model.h"
#include "pages/form.h"
#include "widgets/allow.h"
#include "widgets/table.h"

#include "workbench/entry/values.h"

#include "foundation/presentation.h"

#include <QtCore/QLocale>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace kiv::desktop {

using navigation::ConfigurationData;
using navigation::CurrencyDisplayOptions;

namespace {

QString codesOf(const std::set<numira::Currency> &currencies)
{
    QStringList codes;
    for (const numira::Currency &currency : currencies)
        codes += foundation::toQString(currency);
    return codes.join(QStringLiteral(", "));
}

/// A setting that is a count: how it is shown, and how it is read.
template <auto Member>
QString countText(const ConfigurationData &settings)
{
    return QString::number((settings.*Member).count());
}
template <auto Member>
void readCount(const QString &text, ConfigurationData &settings)
{
    workbench::readValue(text.trimmed(), settings.*Member);
}

} // namespace

SettingsPage::SettingsPage(Desk &desk)
    : Page(desk, QStringLiteral("settings"), tr("Settings")),
      m_form(new Form(desk, this)),
      m_tags(new TableModel({tr("Tag")}, this)),
      m_tagTable(new Table(*m_tags, tr("Tags"), this))
{
    m_form->setHeading(tr("Settings are the same for all budgets. They cannot be undone."));
    addCurrencies();
    addNumbers();
    addLooks();
    auto *layout = new QHBoxLayout(this);
    auto *left = new QVBoxLayout;
    left->addWidget(m_form);
    left->addStretch();
    layout->addLayout(left, 2);
    layout->addWidget(makeTags(), 1);
    connect(m_form, &Form::givenUp, this, &SettingsPage::showSettings);
}

void SettingsPage::addCurrencies()
{
    m_preferred =
        m_form->add(QStringLiteral("preferred"), tr("&Preferred currency:"), new QComboBox);
    connect(m_preferred, &QComboBox::activated, this, [this] {
        apply(*m_preferred, [this](ConfigurationData &settings) {
            numira::Currency currency;
            workbench::readValue(m_preferred->currentText(), currency);
            workbench::prefer(settings, currency);
        });
    });
    addTyped(
        QStringLiteral("usable"), tr("&Usable currencies:"),
        [](const ConfigurationData &settings) { return codesOf(settings.usableCurrencies); },
        [](const QString &text, ConfigurationData &settings) {
            settings.usableCurrencies = workbench::currenciesOf(text);
        });
    m_display =
        m_form->add(QStringLiteral("display"), tr("&Display of currencies:"), new QComboBox);
    for (const auto option : {CurrencyDisplayOptions::IsoCode, CurrencyDisplayOptions::Symbol,
                              CurrencyDisplayOptions::SymbolAndCode})
        m_display->addItem(navigation::presentationText(option), static_cast<int>(option));
    connect(m_display, &QComboBox::activated, this, [this] {
        apply(*m_display, [this](ConfigurationData &settings) {
            settings.currenciesDisplayAs =
                static_cast<CurrencyDisplayOptions>(m_display->currentData().toInt());
        });
    });
}

void SettingsPage::addNumbers()
{
    addTyped(QStringLiteral("notify"), tr("Due items shown &ahead, in days:"),
             countText<&ConfigurationData::notifyDueWithin>,
             readCount<&ConfigurationData::notifyDueWithin>);
    addTyped(
        QStringLiteral("window"), tr("Survey wi&ndow:"),
        [](const ConfigurationData &settings) { return presentationText(settings.surveyWindow); },
        [](const QString &text, ConfigurationData &settings) {
            workbench::readValue(text.trimmed(), settings.surveyWindow);
        });
    addTyped(QStringLiteral("hours"), tr("&Work hours a week:"),
             countText<&ConfigurationData::hoursInWeek>,
             readCount<&ConfigurationData::hoursInWeek>);
    addTyped(QStringLiteral("days"), tr("Work da&ys a week:"),
             countText<&ConfigurationData::daysInWeek>, readCount<&ConfigurationData::daysInWeek>);
}

void SettingsPage::addLooks()
{
    m_appearance = m_form->add(QStringLiteral("appearance"), tr("&Colours:"), new QComboBox);
    m_appearance->addItem(tr("as the system"), QStringLiteral("lookSystem"));
    m_appearance->addItem(tr("light"), QStringLiteral("lookLight"));
    m_appearance->addItem(tr("dark"), QStringLiteral("lookDark"));
    m_appearance->addItem(tr("black on white"), QStringLiteral("lookBlackOnWhite"));
    m_appearance->addItem(tr("white on black"), QStringLiteral("lookWhiteOnBlack"));
    connect(m_appearance, &QComboBox::activated, this,
            [this] { desk().actions().action(m_appearance->currentData().toString())->trigger(); });
    m_textSize = m_form->add(QStringLiteral("textSize"), tr("Te&xt size:"), new QComboBox);
    for (int size = WindowSettings::textSizeMin; size <= WindowSettings::textSizeMax; size += 10)
        m_textSize->addItem(tr("%1 %").arg(size), size);
    connect(m_textSize, &QComboBox::activated, this, [this] {
        desk().settings().setTextSize(m_textSize->currentData().toInt());
        emit desk().looksChanged();
    });
    m_opensLast = m_form->add(QStringLiteral("opensLast"), tr("At the start:"),
                              new QCheckBox(tr("&Open the last budget")));
    connect(m_opensLast, &QCheckBox::clicked, this,
            [this](bool opens) { desk().settings().setOpensLastFile(opens); });
}

QWidget *SettingsPage::makeTags()
{
    auto *side = new QWidget(this);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins({});
    m_noTags = new QLabel(tr("There are no tags. An item's tags are set with the item."), side);
    m_noTags->setTextFormat(Qt::PlainText);
    m_noTags->setWordWrap(true);
    m_removeTag = new QPushButton(tr("&Remove this tag"), side);
    m_removeTag->setObjectName(QStringLiteral("removeTag"));
    m_tagTable->setObjectName(QStringLiteral("tags"));
    m_tagMessage = new FieldMessage(side);
    m_tagMessage->setObjectName(QStringLiteral("tagMessage"));
    layout->addWidget(m_noTags);
    layout->addWidget(m_tagTable, 1);
    layout->addWidget(m_tagMessage);
    layout->addWidget(m_removeTag, 0, Qt::AlignLeft);
    layout->addStretch();
    connect(m_tagTable, &Table::chosenChanged, this, &SettingsPage::followTag);
    connect(m_removeTag, &QPushButton::clicked, this, &SettingsPage::removeTag);
    return side;
}

void SettingsPage::addTyped(const QString &id, const QString &label, decltype(Typed::shown) shown,
                            decltype(Typed::read) read)
{
    const Typed typed{m_form->add(id, label, new QLineEdit), shown, read};
    m_typed.push_back(typed);
    connect(typed.field, &QLineEdit::editingFinished, this, [this, typed] { applyTyped(typed); });
}

void SettingsPage::goTo(const QString &detail)
{
    m_tagTable->choose(detail);
}

QString SettingsPage::detail() const
{
    return {};
}

QWidget *SettingsPage::firstFocus()
{
    return m_preferred;
}

void SettingsPage::refresh()
{
    m_settings = workbench::presentSettings(requests());
    showSettings();
    std::vector<Row> rows;
    for (const tagging::Tag &tag : m_settings.tags)
        rows.push_back({tag.name(), {{tag.name()}}});
    m_tags->setRows(std::move(rows));
    m_tagTable->settle();
    const bool isEmpty = m_tags->rows().empty();
    m_noTags->setVisible(isEmpty);
    m_tagTable->setVisible(!isEmpty);
    m_removeTag->setVisible(!isEmpty);
    m_form->allow(desk().whyNoChange());
    for (QWidget *looks : {static_cast<QWidget *>(m_appearance), static_cast<QWidget *>(m_textSize),
                           static_cast<QWidget *>(m_opensLast)})
        allow(*looks, std::nullopt); // they are the window's own
    followTag();
}

void SettingsPage::showSettings()
{
    m_preferred->clear();
    std::set<numira::Currency> usable = m_settings.usableCurrencies;
    usable.insert(m_settings.preferredCurrency);
    for (const numira::Currency &currency : usable)
        m_preferred->addItem(foundation::toQString(currency));
    m_preferred->setCurrentText(foundation::toQString(m_settings.preferredCurrency));
    m_display->setCurrentIndex(
        m_display->findData(static_cast<int>(m_settings.currenciesDisplayAs)));
    for (const Typed &typed : m_typed) {
        // What was refused stays as long as its reason is told.
        if (!m_form->message().complainsOf(typed.field))
            typed.field->setText(typed.shown(m_settings));
    }
    const WindowSettings &looks = desk().settings();
    m_appearance->setCurrentIndex(static_cast<int>(looks.appearance()));
    m_textSize->setCurrentIndex(m_textSize->findData(looks.textSize()));
    m_opensLast->setChecked(looks.opensLastFile());
}

void SettingsPage::applyTyped(const Typed &typed)
{
    if (typed.field->text() == typed.shown(m_settings))
        return;
    apply(*typed.field,
          [&typed](ConfigurationData &settings) { typed.read(typed.field->text(), settings); });
}

void SettingsPage::apply(QWidget &field, const std::function<void(ConfigurationData &)> &change)
{
    (void)m_form->apply(field, tr("The settings are kept."), [&] {
        ConfigurationData settings = workbench::presentSettings(requests());
        change(settings);
        workbench::storeSettings(requests(), settings);
    });
}

void SettingsPage::followTag()
{
    std::optional<QString> whyNot = desk().whyNoChange();
    if (!whyNot && m_tagTable->chosen().isEmpty())
        whyNot = tr("No tag is chosen.");
    allow(*m_removeTag, whyNot);
}

void SettingsPage::removeTag()
{
    const QString tag = m_tagTable->chosen().value(0);
    const workbench::Deed deed{tr("Removed the tag “%1”.").arg(tag),
                               tr("removing the tag “%1”").arg(tag), Place{id(), tag}.text()};
    const bool isDone = desk().perform(*m_tagMessage, m_tagTable, deed,
                                       [&] { (void)workbench::removeTags(requests(), {tag}); });
    if (!isDone)
        return;
    refresh();
    (m_tags->rows().empty() ? firstFocus() : m_tagTable)->setFocus(Qt::OtherFocusReason);
}

} // namespace kiv::desktop
