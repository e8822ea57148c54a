// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/manual.h"

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QStringList>

namespace kiv::desktop {
namespace {

QString everywhere()
{
    return QObject::tr(
        "A budget is one file. Each change is kept at once and written within a second; the title "
        "says whether it is saved. Ctrl+Z takes a change back, and the page “History” goes back "
        "further.\n\n"
        "The pages stand at the left. Ctrl+1 to Ctrl+9 open them, F6 goes between the list and "
        "the page. Ctrl+K finds every command, account and item by a part of its name. Ctrl+? "
        "lists all keys. F9 tells why the number that is chosen is what it is.\n\n"
        "In a form, Enter does what its first button does, and Esc gives up. What is refused is "
        "told at its field, and what was typed stays. Amounts can be sums, such as 12+3.5. Days "
        "can be short: 3, 5-2, +7, or T for today.");
}

QMap<QString, QString> pageTexts()
{
    return {
        {QStringLiteral("home"),
         QObject::tr("Home answers five questions: what is free to spend, what is due, which day "
                     "ahead is the lowest, what else there is, and what needs care.\n\n"
                     "Of the balance of each bank account, a part is set aside for what is paid "
                     "less often than monthly and for goals; the rest is free. What is still due "
                     "this month is told beside it. Enter on an account shows its lines.\n\n"
                     "Each line of what is due has its own buttons: pay it, skip it, or go to the "
                     "page “Due” for another amount. A balance is that of the bank, with the "
                     "goals that lie in the account. Without an exchange rate, amounts are shown "
                     "in their own currency, and what sums leave out is named.")},
        {QStringLiteral("accounts"),
         QObject::tr("All accounts with their balances: money, what is owed, what is set aside, "
                     "and what money is spent on or comes from. Enter opens the register of an "
                     "account. With a day, the balances are those at its end.")},
        {QStringLiteral("register"),
         QObject::tr("The transactions of one account or of all, and below them the row for new "
                     "ones: Spent, Earned or Moved. Enter in any field posts; the day stays. When "
                     "a payee is known, its last entry fills the other fields.\n\n"
                     "F2 changes the chosen transaction, Del removes it, Ctrl+D enters it again. "
                     "“Refund” in the menu “Transaction” takes money back: the whole amount is "
                     "proposed, and a smaller one can be typed.\n\n"
                     "Ctrl+F searches: words and conditions such as >50, march or "
                     "not:reconciled.")},
        {QStringLiteral("due"),
         QObject::tr("What is due soon and what is late. The form pays the chosen line from an "
                     "account, pays another amount, or skips it. Several lines can be chosen with "
                     "Shift and the arrow keys; they are one step of undo.")},
        {QStringLiteral("items"),
         QObject::tr("The budget's items of five kinds. Bills, debts and free spending are paid, "
                     "goals are saved for, wages come in. Each has an amount, how often it recurs "
                     "and its next day. Enter changes an item, Del removes it.\n\n"
                     "Below the table stands how what is set aside for the chosen item comes "
                     "about: what the last survey had, what was added since and why, and what was "
                     "paid. A goal that is reached and a debt that is paid off can be ended "
                     "there: they are due no longer. The last tab has all that is set aside, "
                     "account by account; Enter shows the item.")},
        {QStringLiteral("outlook"),
         QObject::tr(
             "What is to come, if everything regular goes on: each item on each of its days, what "
             "is "
             "late today, and what was entered for later days. A goal ends when it is reached, a "
             "debt when it is paid off. Money that is set aside for goals is not counted.\n\n"
             "The arrow keys go through the days of the chart. Each row of the upper table has its "
             "own chart and payments; the lower table has the same numbers as the chart.\n\n"
             "The fields ask what if: more or fewer days, an amount that should always be there, "
             "items that are left out (also by Del on a payment), and an amount that is paid on a "
             "day, or received if it has a minus. Enter asks, Esc starts again. The budget stays "
             "as "
             "it is.")},
        {QStringLiteral("reports"),
         QObject::tr(
             "Where the money went and came from. “What” is added up by category, payee, tag or "
             "account; the overview has what is owned and the plan of each item. Spans last from "
             "a week to a year, or from payday to payday; without days there are twelve up to "
             "today. “Only” takes a search, as on the page “Register”.\n\n"
             "Each row of the first table has its own chart. The arrow keys go through the bars, "
             "and the second table has the same numbers. Enter on a bar or a number goes to the "
             "entries behind it, and Enter on an entry to the register.\n\n"
             "Each currency stands by itself unless one is chosen to convert into, at the present "
             "exchange rates. What moves between the household’s own accounts is neither income "
             "nor expense. “Save as” makes a document, a page or a table; Ctrl+P prints.")},
        {QStringLiteral("banks"),
         QObject::tr("The banks and their accounts. The kind of an account says whether its "
                     "balance is money or a debt, and what can be tied to it.")},
        {QStringLiteral("survey"),
         QObject::tr(
             "A survey compares the books with a statement of the bank.\n\n"
             "1. Choose the account, type the day and the balance of the statement, and press "
             "Enter; or lay the bank’s file beside, which fills them in.\n"
             "2. Tick each transaction that stands on the statement: Space ticks and goes down. "
             "What the bank shows and the books lack can be added to the list, and the amount "
             "that is missing is offered.\n"
             "3. The second tab has what is set aside for the items, and why. An amount can be "
             "typed over; an empty field takes it back.\n"
             "4. Complete: the ticked transactions are reconciled, and the balance is kept. A "
             "difference may only stay if you say so, and is shown until it is gone.\n\n"
             "“Put off” keeps the survey, to go on with it later. The third tab lists the past "
             "reconciliations, and says whether their transactions are still as they were.")},
        {QStringLiteral("rates"),
         QObject::tr("One line for each currency: its rate, the day of the rate, and whether it "
                     "was fetched or typed. “Not converted” stands where a usable currency has no "
                     "rate; totals leave it out.\n\n"
                     "A rate can be typed over, and all can be fetched from the service. Rates "
                     "are the same for all budgets and cannot be undone.")},
        {QStringLiteral("history"),
         QObject::tr("The steps of this session, and below them the former versions of the file. "
                     "The lower table says what changed since the chosen one. “Go back to this” "
                     "makes it the present state; undo and redo go on from there. A version that "
                     "was encrypted with another passphrase asks for it.")},
        {QStringLiteral("import"),
         QObject::tr(
             "A file of your bank, or a journal of another program, is laid beside the books.\n\n"
             "1. Choose the file. Its account is found if that is possible, and asked otherwise.\n"
             "2. A table (CSV) shows how it is read. What was found can be changed, and is kept "
             "for the account.\n"
             "3. Each entry says what becomes of it: it is new, it is there already, or an item "
             "that is due is paid with it. Space takes it or leaves it out. Below the table it "
             "can be said what it is and what it is for, and that this is remembered for the "
             "payee. Entries with the sign ⚠ should be looked at.\n\n"
             "The import does what is shown, and is one step of undo.")},
        {QStringLiteral("rules"),
         QObject::tr(
             "A rule says what entries of banks’ files are for, by a part of payee or text, "
             "and by amount and account if wanted. The first rule that fits counts. “Try "
             "the rules” tells which one fits a text.")},
        {QStringLiteral("encryption"),
         QObject::tr(
             "A passphrase encrypts the budget and its former versions: in a shared folder or on a "
             "lost computer nobody can read them. It is needed each time the budget is opened, "
             "unless the desktop’s keyring keeps it. Without it nobody can read the budget, you "
             "neither.\n\n"
             "What was saved before, exports, and what a running program has in memory are not "
             "protected.")},
        {QStringLiteral("settings"),
         QObject::tr("Each setting is applied as soon as its field is left. Settings are the same "
                     "for all budgets and cannot be undone. A currency that the budget uses must "
                     "stay usable.\n\n"
                     "The survey window says by how much the ticked transactions may miss the "
                     "balance of a statement. The hours and days of work are for wages.\n\n"
                     "Removing a tag takes it from all items.")},
    };
}

} // namespace

QString manualText(const QString &page)
{
    const QString own = pageTexts().value(page);
    return own.isEmpty() ? everywhere() : own + QStringLiteral("\n\n") + everywhere();
}

QString householdGuide()
{
    const QStringList parts{
        QObject::tr(
            "Which kind for what\n"
            "Rent, insurance, taxes: a bill. Salary, pension: a wage. A loan from a bank or a "
            "friend: a debt. A holiday, money for emergencies: a goal. Pocket money and "
            "groceries with a planned amount: free spending. What you only want to look back "
            "at: an account for spending. A credit card: an account at a bank, of the kind "
            "credit card. A purse: an account that is owned."),
        QObject::tr(
            "A first week\n"
            "Enter the bank account with its balance, what comes in, and the largest bills: "
            "“Begin step by step” in the menu “File” asks for them. Then enter what is spent "
            "(Ctrl+T), and pay on the page “Due” what is due. All else can wait until it "
            "happens."),
        QObject::tr(
            "The end of the month\n"
            "1. Import the file of the bank (Ctrl+I).\n"
            "2. On the page “Survey”, choose the account, and compare the day and the balance "
            "with the statement. What differs is told.\n"
            "3. Look at what is set aside for bills that do not come each month, and complete.\n"
            "4. “Home” tells what is free."),
        QObject::tr(
            "A card\n"
            "What is bought with it is spent on that day: “Spent”, from the card. Paying its "
            "bill is no second expense: “Moved”, from the bank account to the card."),
        QObject::tr(
            "A loan\n"
            "The page “Due” pays it, and the debt gets smaller. The interest stands on the "
            "lender’s statement: add it in the survey of the loan. A loan from a friend needs "
            "no bank."),
        QObject::tr("A second currency\n"
                    "Each account has one. “Moved” asks for both amounts, as they were booked; no "
                    "exchange rate is needed for that. Totals need one: see “Exchange rates”."),
        QObject::tr("A refund\n"
                    "Choose the payment in the register, then “Refund” in the menu “Transaction”."),
        QObject::tr(
            "A goal that is reached\n"
            "“End it” on the page “Items” spends its money on what is typed there, or gives it "
            "back to the account that holds it. To go on saving, raise what is to be reached."),
        QObject::tr(
            "An account of the wrong kind\n"
            "“Change” on the page “Accounts” corrects it, and on the page “Banks” what it is "
            "to the bank. Its transactions stay."),
        QObject::tr(
            "Changing banks\n"
            "Add the new bank and its account on the page “Banks”. “Replace” then moves the "
            "money of the old one, its goals and what is set aside. “Move to another bank” is "
            "for an account that stays as it is."),
        QObject::tr(
            "A difference with the bank\n"
            "The survey tells what may be behind it. What is only on the statement is entered, "
            "what is only in the books is not ticked, and what was entered twice or with a "
            "wrong amount is corrected. A small rest may stay, and is told until it is gone."),
        QObject::tr(
            "Coming from another program\n"
            "Ctrl+I takes journals of ledger and hledger as they are. Other programs export "
            "each account as QIF, OFX or CSV. Add the account with the balance that it had "
            "before the first entry of the file, then import. At the end, compare the "
            "balances."),
    };
    return parts.join(QStringLiteral("\n\n"));
}

} // namespace kiv::desktop
