#pragma once

#include <QAbstractListModel>
#include <QVariantHash>
#include <QtQml/qqmlregistration.h>

// A list of rows for QML, each a set of named values with a unique "key". Views are rebuilt
// from the store's collections after each change; setRows() turns the new list into the
// smallest change it can tell (changed rows when the keys stay in order, else a reset), so a
// list keeps its scroll position and current item while values change under it.
class RowsModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the workspace")
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    explicit RowsModel(QStringList roles, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void setRows(QList<QVariantHash> rows);
    [[nodiscard]] const QList<QVariantHash> &rows() const { return m_rows; }

    Q_INVOKABLE [[nodiscard]] QVariantMap get(int row) const;
    Q_INVOKABLE [[nodiscard]] int indexOf(const QString &key) const;

signals:
    void countChanged();

private:
    QStringList m_roles;
    QList<QVariantHash> m_rows;
};
