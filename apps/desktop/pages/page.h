// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/desk.h"

#include "workbench/explain/explainer.h"

#include <QtWidgets/QWidget>

namespace kiv::desktop {

/// Makes the explanations of a figure.
using Explain = std::function<std::vector<workbench::Explanation>(const workbench::Explainer &)>;

/// One page of the window. It asks for its data when it is shown and when the budget
/// changes while it is visible; a hidden page is stale and asks when it is shown next.
class Page : public QWidget {
    Q_OBJECT

public:
    /// `id` names it in places and settings, `title` in the list of pages.
    Page(Desk &desk, const QString &id, const QString &title);
    ~Page() override;

    [[nodiscard]] const QString &id() const noexcept { return m_id; }
    [[nodiscard]] const QString &title() const noexcept { return m_title; }

    /// Shows a part of the page, in the words of place().
    virtual void goTo(const QString &detail);
    /// What is shown, so that goTo() brings it back.
    [[nodiscard]] virtual QString detail() const;
    /// The parts of the page that look different from how it opens, in the words of goTo().
    [[nodiscard]] virtual QStringList parts() const;
    /// Explains the figure that is chosen; empty without one.
    [[nodiscard]] virtual Explain explanation();
    /// The widget that gets the focus when the page is shown.
    [[nodiscard]] virtual QWidget *firstFocus() = 0;
    /// The same, or the page itself, which has its name, while that is hidden or off.
    [[nodiscard]] QWidget *entry();

    /// Asks for the page's data if it is stale; the window calls this too.
    void bringUpToDate();

signals:
    /// What explanation() is about may be another figure now.
    void figureChosen();

protected:
    /// Asks for the data and shows them. What it throws is shown instead of them.
    virtual void refresh() = 0;
    /// Forgets what was typed and begun for another file; refresh() follows.
    virtual void forgetFile();

    [[nodiscard]] Desk &desk() const noexcept { return m_desk; }
    [[nodiscard]] workbench::Requests &requests() const { return m_desk.requests(); }
    void showEvent(QShowEvent *event) override;

private:
    Desk &m_desk;
    QString m_id;
    QString m_title;
    int m_shown = 0; ///< opening of the document
    bool m_isStale = true;
};

} // namespace kiv::desktop
