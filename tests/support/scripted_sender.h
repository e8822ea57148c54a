// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fault.h"

#include "networking/request_sender.h"

#include <QtCore/QList>

#include <functional>
#include <optional>
#include <set>

/// Answers requests by a script instead of a network, at once; never where the
/// script gives nothing.
class ScriptedSender final : public kiv::networking::RequestSender {
public:
    using Script = std::function<std::optional<kiv::networking::Response>(const QUrl &)>;

    /// Whoever keeps the record sees what was asked even when the sender is
    /// handed over and gone.
    struct Record {
        QList<QUrl> sent;
        std::set<kiv::networking::RequestNumber> cancelled;
    };

    explicit ScriptedSender(Script script, std::shared_ptr<Record> record = nullptr)
        : m_script(std::move(script)),
          m_record(record ? std::move(record) : std::make_shared<Record>())
    {
    }

    /// Answers every request with this JSON text.
    [[nodiscard]] static Script json(const QByteArray &body)
    {
        return [body](const QUrl &) {
            return kiv::networking::Response::succeeded(body, QStringLiteral("application/json"));
        };
    }
    [[nodiscard]] static Script silence()
    {
        return [](const QUrl &) { return std::nullopt; };
    }

    void send(kiv::networking::RequestNumber request, const QUrl &url) override
    {
        kiv::test::fault.pass("send");
        m_record->sent.append(url);
        if (const auto response = m_script(url))
            emit answered(request, *response);
    }
    void cancel(kiv::networking::RequestNumber request) override
    {
        m_record->cancelled.insert(request);
    }

private:
    Script m_script;
    std::shared_ptr<Record> m_record;
};
