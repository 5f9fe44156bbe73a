#include "appstore.h"

#include "appstore_p.h"
#include "store/storelog.h"

// The invoice templates and the house style kept in the default one.

using namespace Qt::StringLiterals;
using namespace StoreDetail;

namespace {

struct TemplateInsert
{
    QString userId;
    QString name;
    InvoiceStyle style;
    bool isDefault = true;

    static constexpr std::string_view wireName = "TemplateInsert";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("user_id", &TemplateInsert::userId),
            field("name", &TemplateInsert::name),
            field("style", &TemplateInsert::style),
            field("is_default", &TemplateInsert::isDefault),
        };
    }
    friend bool operator==(const TemplateInsert &, const TemplateInsert &) = default;
};

// The whole style is replaced: a key the person emptied must leave the stored JSON.
struct TemplateStylePatch
{
    InvoiceStyle style;

    static constexpr std::string_view wireName = "TemplateStylePatch";
    static constexpr auto wireFields() { return std::tuple{Wire::field("style", &TemplateStylePatch::style)}; }
    friend bool operator==(const TemplateStylePatch &, const TemplateStylePatch &) = default;
};

QString templatesNotLoaded()
{
    //% "Your invoice style could not be loaded."
    return qtTrId("store.style.err.notLoaded");
}

QString styleNotSaved()
{
    //% "The invoice style was not saved: you may not change this template, or it no longer exists."
    return qtTrId("store.style.err.notSaved");
}

} // namespace

std::optional<InvoiceTemplate> AppStore::defaultInvoiceTemplate() const
{
    std::optional<InvoiceTemplate> newest;
    for (const InvoiceTemplate &row : m_invoiceTemplates) {
        // A team mate's template is theirs to bill with, not this user's house style.
        if (row.userId != m_currentUserId) {
            continue;
        }
        if (row.isDefault.value_or(false)) {
            return row;
        }
        if (!newest || instantKey(row.createdAt) > instantKey(newest->createdAt)) {
            newest = row;
        }
    }
    return newest;
}

QCoro::Task<bool> AppStore::loadInvoiceTemplates()
{
    std::optional<Session> session = co_await openSession("Load invoice templates failed: ");
    if (!session) {
        co_return false;
    }
    try {
        const QueryItems query{{u"select"_s, u"*"_s}, {u"order"_s, u"created_at.asc"_s}};
        const auto request = [&, client = m_auth.client()](const QString &token) {
            return client.select<InvoiceTemplate>(u"invoice_templates"_s, token, query);
        };
        QList<InvoiceTemplate> rows = co_await authorized(*session, request);
        if (!isCurrent(*session)) {
            co_return false;
        }
        setInvoiceTemplates(std::move(rows));
        co_return true;
    } catch (const MorvaneError &error) {
        failed("Load invoice templates failed: ", error.message(), templatesNotLoaded());
        co_return false;
    }
}

QCoro::Task<bool> AppStore::saveHouseStyle(InvoiceStyle style)
{
    const char *const logPrefix = "Save invoice style failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    const std::optional<InvoiceTemplate> current = defaultInvoiceTemplate();
    try {
        QList<InvoiceTemplate> rows;
        if (current) {
            const auto request = [&, client = m_auth.client()](const QString &token) {
                return client.update<InvoiceTemplate>(u"invoice_templates"_s, token, idFilter(current->id),
                                                      TemplateStylePatch{style});
            };
            rows = co_await authorized(*session, request);
        } else {
            const TemplateInsert draft{m_currentUserId, u"Default"_s, style, true};
            const auto request = [&, client = m_auth.client()](const QString &token) {
                return client.insert<InvoiceTemplate>(u"invoice_templates"_s, token, draft);
            };
            rows = co_await authorized(*session, request);
        }
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed(logPrefix, u"no row came back"_s, styleNotSaved());
            co_return false;
        }
        QList<InvoiceTemplate> templates = m_invoiceTemplates;
        const auto same = std::find_if(templates.begin(), templates.end(),
                                       [&](const InvoiceTemplate &row) { return row.id == rows.first().id; });
        if (same != templates.end()) {
            *same = rows.first();
        } else {
            templates.append(rows.first());
        }
        setInvoiceTemplates(std::move(templates));
        co_return true;
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, styleNotSaved());
        co_return false;
    }
}

void AppStore::setInvoiceTemplates(QList<InvoiceTemplate> templates)
{
    if (m_invoiceTemplates == templates) {
        return;
    }
    m_invoiceTemplates = std::move(templates);
    emit invoiceTemplatesChanged();
}
