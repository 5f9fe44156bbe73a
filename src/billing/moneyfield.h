#pragma once

#include "billing/moneyinput.h"

#include <QObject>
#include <QString>
#include <QVariant>

#include <optional>

// One money input of a form: the text the person types, the optional number it stands for, and
// whether the text is usable. Text that cannot be read (or an empty required field) marks the
// field invalid and leaves the value as it was, so bad input never reaches the record.
class MoneyField : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    // A number, or undefined in QML when the field is empty.
    Q_PROPERTY(QVariant value READ valueVariant NOTIFY valueChanged)
    Q_PROPERTY(bool invalid READ invalid NOTIFY invalidChanged)
    Q_PROPERTY(QString placeholder READ placeholder WRITE setPlaceholder NOTIFY placeholderChanged)
    Q_PROPERTY(MoneyInput::Kind kind READ kind WRITE setKind NOTIFY kindChanged)
    Q_PROPERTY(bool required READ required WRITE setRequired NOTIFY requiredChanged)
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)

public:
    explicit MoneyField(MoneyInput::Kind kind = MoneyInput::Kind::Amount, QObject *parent = nullptr);

    [[nodiscard]] QString text() const { return m_text; }
    [[nodiscard]] std::optional<double> value() const { return m_value; }
    [[nodiscard]] QVariant valueVariant() const;
    [[nodiscard]] bool invalid() const { return m_invalid; }
    [[nodiscard]] QString placeholder() const { return m_placeholder; }
    [[nodiscard]] MoneyInput::Kind kind() const { return m_kind; }
    [[nodiscard]] bool required() const { return m_required; }
    [[nodiscard]] QString language() const { return m_language; }

    // The person typed: reads the text and, when it is usable, takes its value (empty: none).
    void setText(const QString &text);
    // The bound value changed elsewhere: shows it and forgets any unusable text.
    void setValue(std::optional<double> value);
    void setPlaceholder(const QString &placeholder);
    void setKind(MoneyInput::Kind kind);
    void setRequired(bool required);
    // The language whose decimal separator the field shows ("nl", "en"); empty: the user's locale.
    void setLanguage(const QString &language);

signals:
    void textChanged();
    void valueChanged();
    void invalidChanged();
    void placeholderChanged();
    void kindChanged();
    void requiredChanged();
    void languageChanged();
    // Typing changed the value (not setValue); an editor writes it into its record.
    void edited();

private:
    void validate();
    void setInvalid(bool invalid);
    void showValue();

    QString m_text;
    std::optional<double> m_value;
    bool m_invalid = false;
    QString m_placeholder;
    MoneyInput::Kind m_kind;
    bool m_required = false;
    QString m_language;
};
