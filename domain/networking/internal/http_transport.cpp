// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/internal/http_transport.h"

#include "networking/internal/faults.h"

#include <QtCore/QFile>
#include <QtCore/QObject>

#include <dlfcn.h>
#include <set>

namespace kiv::networking::internal {

namespace {

/// What is left when there is no library that speaks HTTP.
class MissingTransport final : public HttpTransport {
public:
    explicit MissingTransport(QString reason) : m_reason(std::move(reason)) {}

    void start(RequestNumber request, const QUrl &, Done done) override
    {
        m_requests.insert(request);
        QMetaObject::invokeMethod(
            &m_context,
            [this, request, done = std::move(done)] {
                if (m_requests.erase(request) > 0)
                    done(Response::failed(m_reason));
            },
            Qt::QueuedConnection);
    }

    void cancel(RequestNumber request) override { m_requests.erase(request); }

private:
    QString m_reason;
    std::set<RequestNumber> m_requests;
    /// Last, so that it goes first and nothing is called while the others go.
    QObject m_context;
};

/// The path of a library in the folder of the one that this code stands in.
QByteArray besideThis(const char *library)
{
    Dl_info here = {};
    (void)::dladdr(reinterpret_cast<const void *>(&besideThis), &here);
    const QByteArray path = here.dli_fname; // without one the name is looked for alone
    return path.first(path.lastIndexOf('/') + 1) + library;
}

} // namespace

std::unique_ptr<HttpTransport> loadHttpTransport(const HttpLimits &limits, const char *library)
{
    // It stands next to this one, or where the system looks. It is never unloaded,
    // as Qt Network must not be.
    const QByteArray beside = besideThis(library);
    QByteArray fault;
    void *handle = ::dlopen(beside.constData(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        fault = ::dlerror();
        handle = ::dlopen(library, RTLD_NOW | RTLD_LOCAL);
        // One that is here and does not load is the one to be told of.
        if (!handle && !QFile::exists(QFile::decodeName(beside)))
            fault = ::dlerror();
    }
    void *symbol = handle ? ::dlsym(handle, "kivHttpTransport") : nullptr;
    if (handle && !symbol)
        fault = ::dlerror();
    if (!symbol)
        return std::make_unique<MissingTransport>(httpMissing(QString::fromLocal8Bit(fault)));
    auto *make = reinterpret_cast<HttpTransport *(*)(const HttpLimits &)>(symbol);
    return std::unique_ptr<HttpTransport>(make(limits));
}

} // namespace kiv::networking::internal
