// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/overview_page.h"

#include "widgets/table.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

OverviewPage::OverviewPage(Desk &desk)
    : Page(desk, QStringLiteral("overview"), tr("Everything else")),
      m_sections(overviewSections()),
      m_chooser(new QComboBox(this)),
      m_model(new TableModel(m_sections.front().columns, this)),
      m_table(new Table(*m_model, title(), this)),
      m_none(new QLabel(this))
{
    for (const OverviewSection &section : m_sections)
        m_chooser->addItem(section.title, section.id);
    auto *label = new QLabel(tr("&List:"), this);
    label->setBuddy(m_chooser);
    auto *top = new QHBoxLayout;
    top->addWidget(label);
    top->addWidget(m_chooser);
    top->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    m_none->setWordWrap(true);
    layout->addWidget(m_none);
    layout->addWidget(m_table, 1);
    layout->addStretch();
    connect(m_chooser, &QComboBox::currentIndexChanged, this, [this] {
        m_model->setColumns(section().columns);
        refresh();
    });
}

const OverviewSection &OverviewPage::section() const
{
    return m_sections.at(static_cast<std::size_t>(m_chooser->currentIndex()));
}

void OverviewPage::goTo(const QString &detail)
{
    m_chooser->setCurrentIndex(std::max(0, m_chooser->findData(detail.section(u'/', 0, 0))));
    m_table->choose(detail.section(u'/', 1));
}

QString OverviewPage::detail() const
{
    return section().id;
}

QWidget *OverviewPage::firstFocus()
{
    return m_chooser;
}

void OverviewPage::refresh()
{
    m_model->setRows(section().rows(desk().document()));
    const bool isEmpty = m_model->rows().empty();
    m_none->setText(section().none);
    m_none->setVisible(isEmpty);
    m_table->setVisible(!isEmpty);
    m_table->setAccessibleName(section().title);
    m_table->settle();
}

} // namespace kiv::desktop
