#include "rowsmodel.h"

using namespace Qt::StringLiterals;

RowsModel::RowsModel(QStringList roles, QObject *parent)
    : QAbstractListModel(parent)
    , m_roles(std::move(roles))
{
    if (!m_roles.contains(u"key"_s)) {
        m_roles.prepend(u"key"_s);
    }
}

int RowsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant RowsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    const qsizetype column = role - Qt::UserRole;
    if (role == Qt::DisplayRole) {
        return m_rows.at(index.row()).value(u"title"_s);
    }
    if (column < 0 || column >= m_roles.size()) {
        return {};
    }
    return m_rows.at(index.row()).value(m_roles.at(column));
}

QHash<int, QByteArray> RowsModel::roleNames() const
{
    QHash<int, QByteArray> names;
    for (qsizetype i = 0; i < m_roles.size(); ++i) {
        names.insert(Qt::UserRole + int(i), m_roles.at(i).toUtf8());
    }
    return names;
}

void RowsModel::setRows(QList<QVariantHash> rows)
{
    const auto sameKeys = [&] {
        if (rows.size() != m_rows.size()) {
            return false;
        }
        for (qsizetype i = 0; i < rows.size(); ++i) {
            if (rows.at(i).value(u"key"_s) != m_rows.at(i).value(u"key"_s)) {
                return false;
            }
        }
        return true;
    };
    if (!sameKeys()) {
        const qsizetype before = m_rows.size();
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
        if (before != m_rows.size()) {
            emit countChanged();
        }
        return;
    }
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (rows.at(i) != m_rows.at(i)) {
            m_rows[i] = std::move(rows[i]);
            emit dataChanged(index(int(i)), index(int(i)));
        }
    }
}

QVariantMap RowsModel::get(int row) const
{
    if (row < 0 || row >= m_rows.size()) {
        return {};
    }
    QVariantMap map;
    const QVariantHash &values = m_rows.at(row);
    for (auto it = values.begin(); it != values.end(); ++it) {
        map.insert(it.key(), it.value());
    }
    return map;
}

int RowsModel::indexOf(const QString &key) const
{
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        if (m_rows.at(i).value(u"key"_s).toString() == key) {
            return int(i);
        }
    }
    return -1;
}
