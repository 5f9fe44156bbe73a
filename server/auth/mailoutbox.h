#pragma once

#include <QString>

// Where the e-mails of the local backend go: one file per message in a folder of the data
// folder, holding the link a person would click. No mail leaves the machine.
class MailOutbox
{
public:
    explicit MailOutbox(QString dir);

    // Answers the file written, or an empty string when it could not be written.
    QString send(const QString &to, const QString &subject, const QString &body) const;
    [[nodiscard]] const QString &dir() const { return m_dir; }

private:
    QString m_dir;
};
