<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message numerus="yes">
        <source>Due within %n days</source>
        <translation>
            <numerusform>Due within %n day</numerusform>
            <numerusform>Due within %n days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days late</source>
        <translation>
            <numerusform>%n day late</numerusform>
            <numerusform>%n days late</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n days</source>
        <translation>
            <numerusform>in %n day</numerusform>
            <numerusform>in %n days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Posted %n transactions.</source>
        <translation>
            <numerusform>Posted %n transaction.</numerusform>
            <numerusform>Posted %n transactions.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removed the tags %1.</source>
        <translation>
            <numerusform>Removed the tag %1.</numerusform>
            <numerusform>Removed the tags %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removed the transactions %1.</source>
        <translation>
            <numerusform>Removed the transaction %1.</numerusform>
            <numerusform>Removed the transactions %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cleared the transactions %1.</source>
        <translation>
            <numerusform>Cleared the transaction %1.</numerusform>
            <numerusform>Cleared the transactions %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reconciled the transactions %1.</source>
        <translation>
            <numerusform>Reconciled the transaction %1.</numerusform>
            <numerusform>Reconciled the transactions %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undid the reconciliation of the transactions %1.</source>
        <translation>
            <numerusform>Undid the reconciliation of the transaction %1.</numerusform>
            <numerusform>Undid the reconciliation of the transactions %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more changes are not shown; see all with --json.</source>
        <translation>
            <numerusform>%n more change is not shown; see all with --json.</numerusform>
            <numerusform>%n more changes are not shown; see all with --json.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n transaction(s) that move no money are skipped.</source>
        <translation>
            <numerusform>%n transaction that moves nothing is left out.</numerusform>
            <numerusform>%n transactions that move nothing are left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Imported %n entries</source>
        <translation>
            <numerusform>Imported %n entry</numerusform>
            <numerusform>Imported %n entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only %n change(s) can be undone.</source>
        <translation>
            <numerusform>Only %n change can be undone.</numerusform>
            <numerusform>Only %n changes can be undone.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only %n change(s) can be redone.</source>
        <translation>
            <numerusform>Only %n change can be redone.</numerusform>
            <numerusform>Only %n changes can be redone.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Entered %n due items: %1.</source>
        <translation>
            <numerusform>Entered %n due item: %1.</numerusform>
            <numerusform>Entered %n due items: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>entering %n due items</source>
        <translation>
            <numerusform>entering %n due item</numerusform>
            <numerusform>entering %n due items</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped %n due items: %1.</source>
        <translation>
            <numerusform>Skipped %n due item: %1.</numerusform>
            <numerusform>Skipped %n due items: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>skipping %n due items</source>
        <translation>
            <numerusform>skipping %n due item</numerusform>
            <numerusform>skipping %n due items</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removed %n transaction(s).</source>
        <translation>
            <numerusform>Removed %n transaction.</numerusform>
            <numerusform>Removed %n transactions.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>removing %n transaction(s)</source>
        <translation>
            <numerusform>removing %n transaction</numerusform>
            <numerusform>removing %n transactions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Marked %n transaction(s) as cleared.</source>
        <translation>
            <numerusform>Marked %n transaction as cleared.</numerusform>
            <numerusform>Marked %n transactions as cleared.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>marking %n transaction(s) as cleared</source>
        <translation>
            <numerusform>marking %n transaction as cleared</numerusform>
            <numerusform>marking %n transactions as cleared</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Marked %n transaction(s) as not cleared.</source>
        <translation>
            <numerusform>Marked %n transaction as not cleared.</numerusform>
            <numerusform>Marked %n transactions as not cleared.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>marking %n transaction(s) as not cleared</source>
        <translation>
            <numerusform>marking %n transaction as not cleared</numerusform>
            <numerusform>marking %n transactions as not cleared</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Marked %n transaction(s) as reconciled.</source>
        <translation>
            <numerusform>Marked %n transaction as reconciled.</numerusform>
            <numerusform>Marked %n transactions as reconciled.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>marking %n transaction(s) as reconciled</source>
        <translation>
            <numerusform>marking %n transaction as reconciled</numerusform>
            <numerusform>marking %n transactions as reconciled</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Marked %n transaction(s) as not reconciled.</source>
        <translation>
            <numerusform>Marked %n transaction as not reconciled.</numerusform>
            <numerusform>Marked %n transactions as not reconciled.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>marking %n transaction(s) as not reconciled</source>
        <translation>
            <numerusform>marking %n transaction as not reconciled</numerusform>
            <numerusform>marking %n transactions as not reconciled</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put %n transaction(s) under %1.</source>
        <translation>
            <numerusform>Put %n transaction under %1.</numerusform>
            <numerusform>Put %n transactions under %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>putting %n transaction(s) under %1</source>
        <translation>
            <numerusform>putting %n transaction under %1</numerusform>
            <numerusform>putting %n transactions under %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days old</source>
        <translation>
            <numerusform>%n day old</numerusform>
            <numerusform>%n days old</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ticked</source>
        <translation>
            <numerusform>%n ticked</numerusform>
            <numerusform>%n ticked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries that did not take place are skipped (%1).</source>
        <translation>
            <numerusform>%n entry that did not take place is skipped (%1).</numerusform>
            <numerusform>%n entries that did not take place are skipped (%1).</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n further balance(s) differ from the entries, too.</source>
        <translation>
            <numerusform>%n further balance differs from the entries, too.</numerusform>
            <numerusform>%n further balances differ from the entries, too.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Entered on %1 in %n parts, which add up to it.</source>
        <translation>
            <numerusform>Entered on %1 in %n part, which adds up to it.</numerusform>
            <numerusform>Entered on %1 in %n parts, which add up to it.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Imported %n entries of %1</source>
        <translation>
            <numerusform>Imported %n entry of %1</numerusform>
            <numerusform>Imported %n entries of %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removed %n rules.</source>
        <translation>
            <numerusform>Removed %n rule.</numerusform>
            <numerusform>Removed %n rules.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Import %n entries?</source>
        <translation>
            <numerusform>Import %n entry?</numerusform>
            <numerusform>Import %n entries?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries should be looked at; see the marks with --dry-run.</source>
        <translation>
            <numerusform>%n entry should be looked at; see the marks with --dry-run.</numerusform>
            <numerusform>%n entries should be looked at; see the marks with --dry-run.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>%n new</numerusform>
            <numerusform>%n new</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already there</source>
        <translation>
            <numerusform>%n already there</numerusform>
            <numerusform>%n already there</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%n left out</numerusform>
            <numerusform>%n left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>%n to look at</numerusform>
            <numerusform>%n to look at</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 %2 = %3 a month, %n months</source>
        <translation>
            <numerusform>%1 %2 = %3 a month, %n month</numerusform>
            <numerusform>%1 %2 = %3 a month, %n months</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payments, without interest.</source>
        <translation>
            <numerusform>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payment, without interest.</numerusform>
            <numerusform>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payments, without interest.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries of the file are not in the books: %1</source>
        <translation>
            <numerusform>%n entry of the file is not in the books: %1</numerusform>
            <numerusform>%n entries of the file are not in the books: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Which are on the statement? 1-5,9, &apos;all&apos;, &apos;all but 3&apos;, &apos;ask&apos; (empty: the %n ticked)</source>
        <translation>
            <numerusform>Which are on the statement? 1-5,9, &apos;all&apos;, &apos;all but 3&apos;, &apos;ask&apos; (empty: the one ticked)</numerusform>
            <numerusform>Which are on the statement? 1-5,9, &apos;all&apos;, &apos;all but 3&apos;, &apos;ask&apos; (empty: the %n ticked)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Tick all %n that are not ticked yet?</source>
        <translation>
            <numerusform>Tick the one that is not ticked yet?</numerusform>
            <numerusform>Tick all %n that are not ticked yet?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The day %1 is %n years ago.</source>
        <translation>
            <numerusform>The day %1 is %n year ago.</numerusform>
            <numerusform>The day %1 is %n years ago.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The day %1 is in %n years.</source>
        <translation>
            <numerusform>The day %1 is in %n year.</numerusform>
            <numerusform>The day %1 is in %n years.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payments, with interest of about %4 a year.</source>
        <translation>
            <numerusform>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payment, with interest of about %4 a year.</numerusform>
            <numerusform>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payments, with interest of about %4 a year.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No wage comes within %n days.</source>
        <translation>
            <numerusform>No wage comes within %n day.</numerusform>
            <numerusform>No wage comes within %n days.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The goal &apos;%1&apos; lacks %2: reached on %3, after %n payments.</source>
        <translation>
            <numerusform>The goal &apos;%1&apos; lacks %2: reached on %3, after %n payment.</numerusform>
            <numerusform>The goal &apos;%1&apos; lacks %2: reached on %3, after %n payments.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payments.</source>
        <translation>
            <numerusform>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payment.</numerusform>
            <numerusform>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payments.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>With %1 more a month it ends on %2, %n days earlier.</source>
        <translation>
            <numerusform>With %1 more a month it ends on %2, %n day earlier.</numerusform>
            <numerusform>With %1 more a month it ends on %2, %n days earlier.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n earlier entries</source>
        <translation>
            <numerusform>%n earlier entry</numerusform>
            <numerusform>%n earlier entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n transactions, together %1.</source>
        <translation>
            <numerusform>%n transaction, together %1.</numerusform>
            <numerusform>%n transactions, together %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries with a ? should be looked at.</source>
        <translation>
            <numerusform>%n entry with a ? should be looked at.</numerusform>
            <numerusform>%n entries with a ? should be looked at.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::desktop::CategoryRow</name>
    <message numerus="yes">
        <source>Put %n transaction(s) under</source>
        <translation>
            <numerusform>Put %n transaction under</numerusform>
            <numerusform>Put %n transactions under</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::desktop::FirstTimeWizard</name>
    <message numerus="yes">
        <source>&amp;Make the budget with %n item(s)</source>
        <translation>
            <numerusform>&amp;Make the budget with %n item</numerusform>
            <numerusform>&amp;Make the budget with %n items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::desktop::HistoryPage</name>
    <message numerus="yes">
        <source>What changed since then. %n more changes are not shown.</source>
        <translation>
            <numerusform>What changed since then. %n more change is not shown.</numerusform>
            <numerusform>What changed since then. %n more changes are not shown.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::desktop::HomePage</name>
    <message numerus="yes">
        <source>Show %n more</source>
        <translation>
            <numerusform>Show %n more</numerusform>
            <numerusform>Show %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportJournalStep</name>
    <message numerus="yes">
        <source>Im&amp;port %n transactions</source>
        <translation>
            <numerusform>Im&amp;port %n transaction</numerusform>
            <numerusform>Im&amp;port %n transactions</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportRowsStep</name>
    <message numerus="yes">
        <source>Im&amp;port %n entries</source>
        <translation>
            <numerusform>Im&amp;port %n entry</numerusform>
            <numerusform>Im&amp;port %n entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Mark %n entries as seen at the bank</source>
        <translation>
            <numerusform>Mark %n entry as seen at the bank</numerusform>
            <numerusform>Mark %n entries as seen at the bank</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries still need an item or account.</source>
        <translation>
            <numerusform>%n entry still needs an item or account.</numerusform>
            <numerusform>%n entries still need an item or account.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportWizard</name>
    <message numerus="yes">
        <source>All %n entries are there already.</source>
        <translation>
            <numerusform>The %n entry is there already.</numerusform>
            <numerusform>All %n entries are there already.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::desktop::RegisterFilter</name>
    <message numerus="yes">
        <source>%n transaction(s)</source>
        <translation>
            <numerusform>%n transaction</numerusform>
            <numerusform>%n transactions</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ReportsPage</name>
    <message numerus="yes">
        <source>%1: %n entries, together %2</source>
        <translation>
            <numerusform>%1: %n entry, together %2</numerusform>
            <numerusform>%1: %n entries, together %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n entries, which change it by %2</source>
        <translation>
            <numerusform>%1: %n entry, which changes it by %2</numerusform>
            <numerusform>%1: %n entries, which change it by %2</numerusform>
        </translation>
    </message>
</context>
</TS>
