#pragma once

#include <QString>
#include <QStringList>

// The application's desktop entry. One text, src/backend/morvane.desktop, is both the entry
// `cmake --install` puts in share/applications and the one written for the user where Morvane
// runs from elsewhere (the address scheme's handler, the start at login); those get the program's
// own path in their commands.
namespace DesktopEntry {

// The entry with its commands run by `program` (the installed text when empty), and `extraLines`
// added to its main group.
[[nodiscard]] QString text(const QString &program, const QStringList &extraLines = {});

// Writes `content` to `path` whole or not at all, creating the folder; answers whether it did.
bool write(const QString &path, const QString &content);

} // namespace DesktopEntry
