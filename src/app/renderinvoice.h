#pragma once

#include <QCommandLineOption>
#include <QStringList>

#include <memory>

class QCommandLineParser;
class QCoreApplication;
class QTextStream;

// `morvane --render-invoice [--design NAME] [--lines N] [--draft FILE.json] [--out FILE.pdf]
// [--png DIR]`: renders the sample invoice or a draft through the same HTML and PDF path as the
// application and reports the size of the PDF. The only command that starts the web engine.
class RenderInvoiceCommand
{
public:
    RenderInvoiceCommand();

    // Whether the raw arguments ask for a render, before any application object exists: the
    // web engine needs a GUI application made in a prepared environment.
    static bool requested(int argc, char **argv);
    static std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv);

    void addOptions(QCommandLineParser &parser) const;
    [[nodiscard]] bool isSet(const QCommandLineParser &parser) const;
    int run(const QCommandLineParser &parser, QTextStream &out, QTextStream &err) const;

private:
    QCommandLineOption m_render;
    QCommandLineOption m_design;
    QCommandLineOption m_lines;
    QCommandLineOption m_draft;
    QCommandLineOption m_out;
    QCommandLineOption m_png;
};
