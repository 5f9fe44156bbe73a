#pragma once

#include "store/appstore.h"
#include "ui/rowsmodel.h"

#include <QObject>
#include <QPointer>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

// The saved clients for the clients screen and the invoice composer: the active ones by name,
// narrowed by a search over name, e-mail, VAT and chamber-of-commerce numbers, and the edits the
// client form makes. Every write goes through the store; its failures reach the window's banner.
class ClientList : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the workspace")
    Q_PROPERTY(RowsModel *rows READ rows CONSTANT)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    Q_PROPERTY(int total READ total NOTIFY totalChanged)

public:
    explicit ClientList(QObject *parent = nullptr);

    void setStore(AppStore *store);
    [[nodiscard]] RowsModel *rows() const { return m_rows; }
    [[nodiscard]] QString search() const { return m_search; }
    void setSearch(const QString &search);
    // Active clients, whatever the search shows.
    [[nodiscard]] int total() const;

    // The form's fields of one client by their role names; empty for an unknown id.
    Q_INVOKABLE [[nodiscard]] QVariantMap client(const QString &clientId) const;
    // `fields` holds name, email, address, vatId and kvk, as the form shows them.
    Q_INVOKABLE void add(const QVariantMap &fields);
    Q_INVOKABLE void save(const QString &clientId, const QVariantMap &fields);
    Q_INVOKABLE void remove(const QString &clientId);

signals:
    void searchChanged();
    void totalChanged();
    // The new client, for the view to select.
    void added(const QString &clientId);

private:
    void rebuild();

    QPointer<AppStore> m_store;
    RowsModel *m_rows;
    QString m_search;
    int m_total = 0;
};
