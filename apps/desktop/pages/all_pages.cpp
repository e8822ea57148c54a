// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/all_pages.h"

#include "pages/accounts_page.h"
#include "pages/banks_page.h"
#include "pages/due_page.h"
#include "pages/history_page.h"
#include "pages/home_page.h"
#include "pages/items_page.h"
#include "pages/overview_page.h"
#include "pages/register_page.h"

namespace kiv::desktop {

std::vector<Page *> makePages(Desk &desk)
{
    return {
        new HomePage(desk),  new AccountsPage(desk), new RegisterPage(desk), new DuePage(desk),
        new ItemsPage(desk), new BanksPage(desk),    new OverviewPage(desk), new HistoryPage(desk),
    };
}

} // namespace kiv::desktop
