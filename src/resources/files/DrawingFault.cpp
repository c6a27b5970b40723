#include "resources/files/DrawingFault.h"

#include "resources/files/FileLimits.h"
#include "resources/files/Inflated.h"
#include "resources/files/RasterPixels.h"

#include <QtCore/QBuffer>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QImageReader>

#include <optional>

namespace TARN {

namespace {

/// Looks at whatever a drawing may have the renderer read besides itself.
class LinkScanner
{
public:
    explicit LinkScanner(const QByteArray &text)
        : m_reader(text)
    {
        // As the renderer reads: it knows elements and attributes by their qualified names.
        m_reader.setNamespaceProcessing(false);
    }

    /// Returns what is wrong with the first link at fault.
    QString fault()
    {
        QString fault;
        while (!m_reader.atEnd() && fault.isEmpty()) {
            switch (m_reader.readNext()) {
            case QXmlStreamReader::StartElement:
                fault = elementFault();
                break;
            case QXmlStreamReader::ProcessingInstruction:
                fault = instructionFault();
                break;
            default:
                break;
            }
        }
        return fault;
    }

private:
    QString instructionFault() const
    {
        return m_reader.processingInstructionTarget() == QLatin1String("xml-stylesheet")
                   ? QStringLiteral("it names a stylesheet in another file")
                   : QString();
    }

    QString elementFault()
    {
        const QStringRef name = m_reader.qualifiedName();
        if (name != QLatin1String("image") && !name.endsWith(QLatin1String(":image"))) {
            return {};
        }
        const QXmlStreamAttributes attributes = m_reader.attributes();
        for (const QXmlStreamAttribute &attribute : attributes) {
            if (attribute.qualifiedName().endsWith(QLatin1String("href"))) {
                QString fault = linkFault(attribute.value().toString().trimmed());
                if (!fault.isEmpty()) {
                    return fault;
                }
            }
        }
        return {};
    }

    QString linkFault(const QString &link)
    {
        // The renderer takes every link that begins like this for the picture itself.
        if (link.startsWith(QLatin1String("data"))) {
            return embeddedPictureFault(link);
        }
        constexpr int shownLength = 80;
        return link.isEmpty()
                   ? QString()
                   : QStringLiteral(R"(it links to the picture "%1")").arg(link.left(shownLength));
    }

    QString embeddedPictureFault(const QString &link)
    {
        static const QLatin1String encoding("base64,");
        const int begin = link.lastIndexOf(encoding);
        if (begin < 0) {
            return {};
        }
        QByteArray content =
            QByteArray::fromBase64(link.midRef(begin + encoding.size()).toLatin1());
        QBuffer buffer(&content);
        buffer.open(QIODevice::ReadOnly);
        if (QImageReader(&buffer).format().startsWith("svg")) {
            return QStringLiteral("it holds another drawing");
        }
        m_embeddedPixels += rasterPixels(buffer);
        return m_embeddedPixels > FileLimits::iconPixels
                   ? QStringLiteral("the pictures in it have more than %1 pixels")
                         .arg(FileLimits::iconPixels)
                   : QString();
    }

    QXmlStreamReader m_reader;
    qint64 m_embeddedPixels = 0;
};

/// Tells whether \a text lacks the words that every link begins with. Where a drawing begins with
/// its element, no other encoding and no entity has been declared that could hide them.
bool hasNoLinks(const QByteArray &text)
{
    return text.startsWith("<svg") && !text.contains("image") && !text.contains("xml-stylesheet");
}

} // namespace

QString drawingFault(const QByteArray &content)
{
    const std::optional<QByteArray> text =
        isGzipped(content) ? inflated(content, FileLimits::drawingBytes) : content;
    if (!text || text->size() > FileLimits::drawingBytes) {
        return QStringLiteral("it is damaged, or has more than %1 bytes")
            .arg(FileLimits::drawingBytes);
    }
    return hasNoLinks(*text) ? QString() : LinkScanner(*text).fault();
}

} // namespace TARN
