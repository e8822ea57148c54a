// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/element.h"

#include <QtCore/QXmlStreamReader>

#include <optional>

namespace kiv::interchange::internal {

/// Goes through a document of ISO 20022 statement by statement, keeping no more than one
/// element of a statement in memory.
class CamtTree {
public:
    /// Throws ImportError for a document type: it could name entities.
    CamtTree(const QString &text, QString file);

    /// Moves to the next statement; false at the end. Throws ImportError for broken XML, for
    /// tags that are nested too deeply, and for an entry outside statements.
    bool nextStatement();
    /// The next element of the statement; nothing at its end.
    std::optional<Element> nextElement();

    /// Where it is read at present.
    [[nodiscard]] Place place() const;
    /// Whether it was a message about accounts at all.
    [[nodiscard]] bool isCamt() const noexcept { return m_isCamt; }
    /// Where the message says that another one continues it.
    [[nodiscard]] const std::optional<Place> &goesOn() const noexcept { return m_goesOn; }

private:
    QXmlStreamReader::TokenType next();
    Element takeElement(int depth);
    void skipElement();

    QXmlStreamReader m_xml;
    QString m_file;
    int m_depth = 0;          ///< outside statements
    qsizetype m_elements = 0; ///< of the present element
    bool m_isCamt = false;
    std::optional<Place> m_goesOn;
};

/// Where a page says that it is not the last one.
[[nodiscard]] std::optional<Place> goesOn(const Element &pagination);

} // namespace kiv::interchange::internal
