// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/page.h"

#include "workbench/requests/settings.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

class Form;
class Table;
class TableModel;

/// The user's settings, which are applied as soon as a field is left, and the tags that
/// there are.
class SettingsPage final : public Page {
    Q_OBJECT

public:
    explicit SettingsPage(Desk &desk);

    /// A tag.
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    [[nodiscard]] QWidget *firstFocus() override;

protected:
    void refresh() override;

private:
    /// How one typed setting is shown and read.
    struct Typed {
        QLineEdit *field;
        QString (*shown)(const navigation::ConfigurationData &);
        void (*read)(const QString &, navigation::ConfigurationData &);
    };

    void addCurrencies();
    void addNumbers();
    void addLooks();
    [[nodiscard]] QWidget *makeTags();
    void addTyped(const QString &id, const QString &label, decltype(Typed::shown) shown,
                  decltype(Typed::read) read);
    void applyTyped(const Typed &typed);
    void apply(QWidget &field, const std::function<void(navigation::ConfigurationData &)> &change);
    void showSettings();
    void followTag();
    void removeTag();

    navigation::ConfigurationData m_settings;
    Form *m_form;
    QComboBox *m_preferred = nullptr;
    QComboBox *m_display = nullptr;
    std::vector<Typed> m_typed;
    QComboBox *m_appearance = nullptr;
    QComboBox *m_textSize = nullptr;
    QCheckBox *m_opensLast = nullptr;
    TableModel *m_tags;
    Table *m_tagTable;
    QLabel *m_noTags = nullptr;
    QPushButton *m_removeTag = nullptr;
    FieldMessage *m_tagMessage = nullptr;
};

} // namespace kiv::desktop
