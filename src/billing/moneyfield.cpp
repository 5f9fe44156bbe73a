#include "moneyfield.h"

MoneyField::MoneyField(MoneyInput::Kind kind, QObject *parent)
    : QObject(parent)
    , m_kind(kind)
{}

QVariant MoneyField::valueVariant() const
{
    return m_value ? QVariant(*m_value) : QVariant();
}

void MoneyField::setText(const QString &text)
{
    if (text == m_text) {
        return;
    }
    m_text = text;
    emit textChanged();
    validate();
}

// Reads the text; only a usable text moves the value.
void MoneyField::validate()
{
    const bool empty = m_text.trimmed().isEmpty();
    const std::optional<double> parsed = empty ? std::nullopt : MoneyInput::parseDecimal(m_text);
    const bool invalid = empty ? m_required : !parsed.has_value();
    setInvalid(invalid);
    if (invalid || parsed == m_value) {
        return;
    }
    m_value = parsed;
    emit valueChanged();
    emit edited();
}

void MoneyField::setValue(std::optional<double> value)
{
    const bool changed = value != m_value;
    m_value = value;
    showValue();
    if (changed) {
        emit valueChanged();
    }
}

void MoneyField::showValue()
{
    const QString shown = MoneyInput::text(m_value, m_language, m_kind);
    if (shown != m_text) {
        m_text = shown;
        emit textChanged();
    }
    setInvalid(m_required && !m_value);
}

void MoneyField::setInvalid(bool invalid)
{
    if (invalid == m_invalid) {
        return;
    }
    m_invalid = invalid;
    emit invalidChanged();
}

void MoneyField::setPlaceholder(const QString &placeholder)
{
    if (placeholder == m_placeholder) {
        return;
    }
    m_placeholder = placeholder;
    emit placeholderChanged();
}

void MoneyField::setKind(MoneyInput::Kind kind)
{
    if (kind == m_kind) {
        return;
    }
    m_kind = kind;
    emit kindChanged();
    // Text being typed stays as typed; a settled value is shown the new way.
    if (!m_invalid) {
        showValue();
    }
}

void MoneyField::setRequired(bool required)
{
    if (required == m_required) {
        return;
    }
    m_required = required;
    emit requiredChanged();
    validate();
}

void MoneyField::setLanguage(const QString &language)
{
    if (language == m_language) {
        return;
    }
    m_language = language;
    emit languageChanged();
    if (!m_invalid) {
        showValue();
    }
}
