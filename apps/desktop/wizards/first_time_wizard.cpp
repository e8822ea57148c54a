// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/first_time_wizard.h"

#include "widgets/currency_box.h"
#include "widgets/flow_layout.h"
#include "widgets/money_edit.h"

#include "workbench/requests/settings.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QStandardPaths>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using workbench::Document;

namespace {

QString suggestedFile()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString name = QObject::tr("household", "the name of a file");
    QString file = folder + u'/' + name;
    for (int number = 2; QFileInfo::exists(Document::withExtension(file)); ++number)
        file = folder + u'/' + name + u'-' + QString::number(number);
    return QDir::toNativeSeparators(Document::withExtension(file));
}

/// The currency of the country in which the user lives, or else that of the settings.
numira::Currency guessedCurrency(const numira::Currency &otherwise)
{
    const std::string code = QLocale().currencySymbol(QLocale::CurrencyIsoCode).toStdString();
    const auto found = std::ranges::find(numira::activeCurrencies(), code, &numira::toStdString);
    return found == numira::activeCurrencies().end() ? otherwise : *found;
}

workbench::NewName nameIn(const QLineEdit &edit)
{
    workbench::NewName name;
    workbench::readValue(edit.text(), name);
    return name;
}

} // namespace

FirstTimeWizard::FirstTimeWizard(Desk &desk, FileSession &session)
    : m_desk(desk),
      m_session(session),
      m_steps(new QStackedWidget(this)),
      m_place(nullptr),
      m_file(nullptr),
      m_currency(nullptr),
      m_bank(nullptr),
      m_bankName(nullptr),
      m_accountName(nullptr),
      m_kind(nullptr),
      m_balance(nullptr),
      m_household(nullptr),
      m_finish(nullptr)
{
    setObjectName(QStringLiteral("wizard"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_steps, 1);
    addPlaceStep();
    addBankStep();
    addHouseholdStep();
    addWaysOut();
}

QWidget *FirstTimeWizard::addStep(const QString &heading)
{
    auto *step = new QWidget(m_steps);
    auto *layout = new QVBoxLayout(step);
    layout->setContentsMargins({});
    auto *label = new QLabel(
        tr("Step %1 of %2: %3").arg(m_steps->count() + 1).arg(std::size(steps)).arg(heading), step);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    layout->addWidget(label);
    step->setAccessibleName(label->text());
    m_steps->addWidget(step);
    return step;
}

void FirstTimeWizard::addPlaceStep()
{
    QWidget *step = addStep(tr("where the budget lies. It is one file on your computer."));
    m_place = new Form(m_desk, step);
    m_file =
        m_place->add(QStringLiteral("file"), tr("&Budget file:"), new QLineEdit(suggestedFile()));
    m_currency = m_place->add(QStringLiteral("currency"), tr("C&urrency:"), new CurrencyBox);
    m_currency->setCurrency(guessedCurrency(m_desk.requests().preferredCurrency()));
    m_place->addButton(QStringLiteral("next"), tr("&Next"), [this] { goOn(); });
    m_place->addButton(QStringLiteral("choose"), tr("&Choose the file …"), [this] {
        const QString file = m_desk.questions().fileToMake(this, tr("New budget"));
        if (!file.isEmpty())
            m_file->setText(QDir::toNativeSeparators(file));
    });
    auto *layout = static_cast<QVBoxLayout *>(step->layout());
    layout->addWidget(m_place);
    layout->addStretch();
    connect(m_place, &Form::givenUp, this, &FirstTimeWizard::left);
}

void FirstTimeWizard::addBankStep()
{
    QWidget *step = addStep(tr("the bank account from which you pay most things. More can be "
                               "added later."));
    m_bank = new Form(m_desk, step);
    m_bankName = m_bank->add(QStringLiteral("bank"), tr("Name of the &bank:"), new QLineEdit);
    m_accountName = m_bank->add(QStringLiteral("account"), tr("Name of the &account:"),
                                new QLineEdit(tr("Checking")));
    m_kind = m_bank->add(QStringLiteral("kind"), tr("K&ind of account:"), new QComboBox);
    for (const banking::BankAccountTypes kind :
         {banking::BankAccountTypes::Checking, banking::BankAccountTypes::Savings})
        m_kind->addItem(banking::presentationText(kind), static_cast<int>(kind));
    m_balance = m_bank->add(QStringLiteral("balance"), tr("&What is on it today:"), new MoneyEdit);
    m_bank->addButton(QStringLiteral("next"), tr("&Next"), [this] { goOn(); });
    m_bank->addButton(QStringLiteral("back"), tr("Bac&k"), [this] { goTo(Step::Place); });
    auto *layout = static_cast<QVBoxLayout *>(step->layout());
    layout->addWidget(m_bank);
    layout->addStretch();
    connect(m_bank, &Form::givenUp, this, &FirstTimeWizard::left);
}

void FirstTimeWizard::addHouseholdStep()
{
    QWidget *step = addStep(tr("what comes in and what must be paid. Only items with an amount "
                               "are made; all of it can be changed later."));
    m_household = new HouseholdStep(m_desk, step);
    m_finish = new QPushButton(step);
    m_finish->setObjectName(QStringLiteral("finish"));
    auto *back = new QPushButton(tr("&Back"), step);
    back->setObjectName(QStringLiteral("back"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_finish);
    buttons->addWidget(back);
    buttons->addStretch();
    auto *layout = static_cast<QVBoxLayout *>(step->layout());
    layout->addWidget(m_household, 1);
    layout->addLayout(buttons);
    const auto tell = [this] {
        m_finish->setText(tr("&Make the budget with %n item(s)", nullptr,
                             static_cast<int>(m_household->items().size())));
    };
    tell();
    connect(m_household, &HouseholdStep::changed, this, tell);
    connect(m_finish, &QPushButton::clicked, this, &FirstTimeWizard::finish);
    connect(back, &QPushButton::clicked, this, [this] { goTo(Step::Bank); });
}

void FirstTimeWizard::addWaysOut()
{
    auto *label = new QLabel(tr("Or begin in another way:"), this);
    label->setTextFormat(Qt::PlainText);
    auto *row = new FlowLayout;
    row->addWidget(label);
    for (const char *id : {"new", "open", "demonstration"}) {
        QAction *action = m_desk.actions().action(QString::fromLatin1(id));
        // Without its mnemonic, which the menu has.
        auto *button = new QPushButton(action->iconText(), this);
        button->setObjectName(QString::fromLatin1(id));
        connect(button, &QPushButton::clicked, action, &QAction::trigger);
        row->addWidget(button);
    }
    auto *later = new QPushButton(tr("Not n&ow"), this);
    later->setObjectName(QStringLiteral("later"));
    connect(later, &QPushButton::clicked, this, &FirstTimeWizard::left);
    row->addWidget(later);
    static_cast<QVBoxLayout *>(layout())->addLayout(row);
}

FirstTimeWizard::Step FirstTimeWizard::step() const
{
    return steps[m_steps->currentIndex()];
}

void FirstTimeWizard::goTo(Step step)
{
    m_steps->setCurrentIndex(static_cast<int>(step));
    if (step != Step::Place)
        m_balance->setCurrency(m_currency->currency());
    if (step == Step::Household)
        m_household->setCurrency(m_currency->currency());
    m_desk.say(m_steps->currentWidget()->accessibleName());
    firstFocus()->setFocus(Qt::OtherFocusReason);
}

QWidget *FirstTimeWizard::firstFocus() const
{
    switch (step()) {
    case Step::Place:
        return m_file;
    case Step::Bank:
        return m_bankName;
    case Step::Household:
        return m_household->firstFocus();
    }
    return m_file;
}

bool FirstTimeWizard::readPlace()
{
    m_place->message().withdraw();
    const auto file = m_place->read(*m_file, [this] {
        QString path = QFileInfo(nameIn(*m_file).text).absoluteFilePath();
        Document::refuseExisting(path);
        const QFileInfo folder(QFileInfo(path).absolutePath());
        if (!folder.isDir())
            throw workbench::Refusal(tr("There is no folder “%1”.").arg(folder.filePath()));
        if (!folder.isWritable())
            throw workbench::Refusal(
                tr("Nothing can be written to the folder “%1”.").arg(folder.filePath()));
        return path;
    });
    if (file)
        m_answers.preferred = m_currency->currency();
    return file.has_value();
}

bool FirstTimeWizard::readBank()
{
    m_bank->message().withdraw();
    const auto bank = m_bank->read(*m_bankName, [this] { return nameIn(*m_bankName).text; });
    if (!bank)
        return false;
    const auto account =
        m_bank->read(*m_accountName, [this] { return nameIn(*m_accountName).text; });
    if (!account)
        return false;
    const auto balance = m_bank->read(*m_balance, [this]() -> std::optional<workbench::Amount> {
        if (m_balance->text().trimmed().isEmpty())
            return std::nullopt;
        workbench::Amount amount = m_balance->amount();
        (void)amount.in(m_currency->currency());
        return amount;
    });
    if (!balance)
        return false;
    m_answers.bank = *bank;
    m_answers.account = *account;
    m_answers.balance = *balance;
    m_answers.type = static_cast<banking::BankAccountTypes>(m_kind->currentData().toInt());
    return true;
}

void FirstTimeWizard::goOn()
{
    if (step() == Step::Place ? readPlace() : readBank())
        goTo(step() == Step::Place ? Step::Bank : Step::Household);
}

bool FirstTimeWizard::isBankRefused()
{
    workbench::StarterAnswers without = m_answers;
    without.items.clear();
    const auto back = qScopeGuard([this] { m_desk.document().revert(); });
    try {
        workbench::fillIn(m_desk.requests(), without);
    } catch (const foundation::Error &) {
        return true;
    }
    return false;
}

void FirstTimeWizard::finish()
{
    if (!m_household->takeTyped())
        return;
    // What was right when it was typed can be wrong by now.
    if (!readPlace()) {
        goTo(Step::Place);
        return;
    }
    if (!readBank()) {
        goTo(Step::Bank);
        return;
    }
    m_answers.items = m_household->items();
    bool isFilled = false;
    // Others are stored before the budget is made, and these go on for the one that is open.
    std::optional<navigation::ConfigurationData> former;
    if (!m_desk.document().file().isEmpty())
        former = workbench::presentSettings(m_desk.requests());
    try {
        m_session.makeFilled(
            QFileInfo(m_file->text()).absoluteFilePath(),
            {tr("Made the budget"), tr("making the budget"), QStringLiteral("home")}, [&] {
                workbench::fillIn(m_desk.requests(), m_answers);
                isFilled = true;
            });
    } catch (const foundation::Error &error) {
        const QString sentence = workbench::userText(error);
        if (isFilled) {
            goTo(Step::Place);
            m_place->message().complain(m_file, sentence);
        } else if (isBankRefused()) {
            goTo(Step::Bank);
            m_bank->message().complain(m_bankName, sentence);
        } else {
            m_household->complain(sentence);
        }
        if (former)
            workbench::storeCurrencies(*former);
    }
}

void FirstTimeWizard::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        emit left();
    else
        QWidget::keyPressEvent(event);
}

} // namespace kiv::desktop
