// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/all_pages.h"

#include "pages/accounts_page.h"
#include "pages/banks_page.h"
#include "pages/due_page.h"
#include "pages/encryption_page.h"
#include "pages/history_page.h"
#include "pages/home_page.h"
#include "pages/items_page.h"
#include "pages/outlook_page.h"
#include "pages/rates_page.h"
#include "pages/register_page.h"
#include "pages/reports_page.h"
#include "pages/rules_page.h"
#include "pages/settings_page.h"
#include "pages/survey_page.h"
#include "wizards/import_wizard.h"

namespace kiv::desktop {

std::vector<Page *> makePages(Desk &desk)
{
    return {
        new HomePage(desk),    new AccountsPage(desk),   new RegisterPage(desk),
        new DuePage(desk),     new ItemsPage(desk),      new OutlookPage(desk),
        new ReportsPage(desk), new BanksPage(desk),      new SurveyPage(desk),
        new RatesPage(desk),   new HistoryPage(desk),    new ImportWizard(desk),
        new RulesPage(desk),   new EncryptionPage(desk), new SettingsPage(desk),
    };
}

} // namespace kiv::desktop
