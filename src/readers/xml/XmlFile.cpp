#include "readers/xml/XmlFile.h"

#include "readers/xml/XmlGuard.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtXml/QDomDocument>
#include <QtXml/QXmlInputSource>

namespace TARN {

namespace {

/// In characters. A string holds four times as many, and a document takes up to 60 bytes for each.
constexpr int maxTextSize = 256'000'000;

/// Tells whether \a data, the beginning of a text, leaves no doubt that the text is UTF-8: it has
/// neither a byte order mark nor the zeros of a wider encoding, and declares no other encoding.
bool isPlainUtf8(const QByteArray &data)
{
    const bool startsLikeMarkup = data.startsWith('<') && data.size() >= 4 && data.at(1) != 0;
    if (!startsLikeMarkup) {
        return false;
    }
    if (!data.startsWith("<?xml")) {
        return true;
    }
    const int end = data.indexOf("?>");
    const QByteArray declaration = data.left(end);
    return end >= 0 &&
           (!declaration.contains("encoding") || declaration.contains("encoding=\"UTF-8\""));
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
/// Returns the text of \a device as the parser would see it, up to where it is too long. The input
/// source is what the parser itself decodes with: it looks at byte order marks and at the encoding
/// that the text declares, and it stops at a block that decodes to nothing.
QString textAsParsed(QIODevice &device)
{
    QXmlInputSource source(&device);
    QString text;
    text.reserve(static_cast<int>(qMin<qint64>(device.size(), maxTextSize)));
    for (QString block = source.data(); !block.isEmpty() && text.size() <= maxTextSize;
         block = source.data()) {
        text += block;
        source.fetchData();
    }
    return text;
}
QT_WARNING_POP

/// The same, at once where the encoding is beyond doubt.
QString decodedText(QIODevice &device)
{
    constexpr qint64 declarationSize = 256;
    if (device.size() > maxTextSize || !isPlainUtf8(device.peek(declarationSize))) {
        return textAsParsed(device);
    }
    return QString::fromUtf8(device.readAll());
}

ReaderStatus readSource(QIODevice &device, QDomDocument &document, XmlSource &source)
{
    source.text = decodedText(device);
    if (source.text.size() > maxTextSize || !isSafeXml(source.text)) {
        document = QDomDocument();
        source.fault = QStringLiteral("too deeply nested, too large, or with declarations that "
                                      "the parser is not trusted with");
        return Faulty;
    }
    const bool fine =
        document.setContent(source.text, false, &source.fault, &source.line, &source.column);
    return fine ? ReadFine : Faulty;
}

} // namespace

ReaderStatus readXml(QIODevice &device, QDomDocument &document)
{
    XmlSource source;
    return readSource(device, document, source);
}

ReaderStatus readXmlFile(const QString &path, QDomDocument &document)
{
    XmlSource source;
    return readXmlFile(path, document, source);
}

ReaderStatus readXmlFile(const QString &path, QDomDocument &document, XmlSource &source)
{
    // Opening a pipe waits for a writer, and a device may have no end.
    if (!QFileInfo(path).isFile()) {
        return CannotOpen;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return CannotOpen;
    }
    return readSource(file, document, source);
}

} // namespace TARN
