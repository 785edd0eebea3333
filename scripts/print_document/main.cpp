// Prints a Markdown file as PDF.
//
//   print_document SOURCE.md TARGET.pdf
//
// The document says in its property "Creator" which text it was made of, so that a test sees when it is out of date.

#include <QCryptographicHash>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

#include <cstdio>

namespace {

constexpr int kDpi = 300;
constexpr int kPointSize = 10;

/// Tables over the whole width, with thin lines.
void styleTables(QTextFrame *frame)
{
    for (QTextFrame *child : frame->childFrames()) {
        if (auto *table = qobject_cast<QTextTable *>(child)) {
            QTextTableFormat format = table->format();
            format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
            format.setBorder(1);
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderBrush(Qt::gray);
            format.setBorderCollapse(true);
            format.setCellPadding(4);
            format.setHeaderRowCount(1); // again on the next page
            table->setFormat(format);
        }
        styleTables(child);
    }
}

/// Room above the headings.
void styleHeadings(QTextDocument *document)
{
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        if (format.headingLevel() < 2)
            continue;
        format.setTopMargin(16);
        format.setBottomMargin(4);
        QTextCursor(block).setBlockFormat(format);
    }
}

bool write(const QByteArray &source, const QString &target)
{
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QTextDocument document;
    document.setDefaultFont(QFont(QStringLiteral("DejaVu Sans"), kPointSize));
    document.setMarkdown(QString::fromUtf8(source));
    styleTables(document.rootFrame());
    styleHeadings(&document);
    const QByteArray sum = QCryptographicHash::hash(source, QCryptographicHash::Sha1).toHex().left(12);
    QPdfWriter writer(&file);
    writer.setResolution(kDpi);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0)); // printing a document makes its own
    writer.setTitle(document.firstBlock().text());
    writer.setCreator(QStringLiteral("print_document of text ") + QString::fromLatin1(sum));
    document.print(&writer);
    return file.commit();
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: print_document SOURCE.md TARGET.pdf\n");
        return 2;
    }
    QFile source(arguments[1]);
    if (source.open(QIODevice::ReadOnly) && write(source.readAll(), arguments[2]))
        return 0;
    std::fprintf(stderr, "print_document: cannot print %s to %s\n", qPrintable(arguments[1]),
                 qPrintable(arguments[2]));
    return 1;
}
