#include "resources/files/Inflated.h"

#include <array>
#include <zlib.h>

namespace TARN {

namespace {

/// A stream of zlib's for as long as it lives.
class InflatingStream
{
public:
    explicit InflatingStream(const QByteArray &compressed)
    {
        // Added to the size of the window, this has the library tell the two formats apart.
        constexpr int anyFormat = 32;
        // The library's interface is older than const.
        m_stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(compressed.constData()));
        m_stream.avail_in = uInt(compressed.size());
        m_isValid = inflateInit2(&m_stream, MAX_WBITS + anyFormat) == Z_OK;
    }
    InflatingStream(const InflatingStream &) = delete;
    InflatingStream &operator=(const InflatingStream &) = delete;
    ~InflatingStream() { inflateEnd(&m_stream); }

    bool isValid() const { return m_isValid; }
    bool isAtEnd() const { return m_isAtEnd; }

    /// Appends the next piece to \a content. Returns false when there is none.
    bool appendTo(QByteArray &content)
    {
        std::array<char, 16384> piece{};
        m_stream.next_out = reinterpret_cast<Bytef *>(piece.data());
        m_stream.avail_out = uInt(piece.size());
        const int result = inflate(&m_stream, Z_NO_FLUSH);
        content.append(piece.data(), int(piece.size() - m_stream.avail_out));
        m_isAtEnd = result == Z_STREAM_END;
        return result == Z_OK || m_isAtEnd;
    }

private:
    z_stream m_stream{};
    bool m_isValid = false;
    bool m_isAtEnd = false;
};

} // namespace

bool isGzipped(const QByteArray &data)
{
    return data.startsWith("\x1f\x8b");
}

std::optional<QByteArray> inflated(const QByteArray &compressed, qint64 mostBytes)
{
    InflatingStream stream(compressed);
    QByteArray content;
    while (!stream.isAtEnd()) {
        if (!stream.isValid() || !stream.appendTo(content) || content.size() > mostBytes) {
            return std::nullopt;
        }
    }
    return content;
}

} // namespace TARN
