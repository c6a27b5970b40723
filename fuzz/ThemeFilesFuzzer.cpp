#include <readers/QPaletteReader.h>
#include <readers/ThemeConfigurationReader.h>
#include <theme/BaseThemeSettings.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtWidgets/QApplication>
#include <QtXml/QDomDocument>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace {

/// A file that lies in memory only.
class MemoryFile
{
public:
    explicit MemoryFile(const QByteArray &content)
        : m_descriptor(memfd_create("theme", MFD_CLOEXEC))
    {
        if (m_descriptor < 0 || ::write(m_descriptor, content.constData(),
                                        std::size_t(content.size())) != content.size()) {
            std::abort();
        }
    }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;
    ~MemoryFile() { close(m_descriptor); }

    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor); }

private:
    int m_descriptor;
};

/// Ends the run when a reader took for faultless what the parser finds faulty, or read a name that
/// is not the one that stands there: then they do not see the same text.
void checkAgainstParser(const QByteArray &content, const TARN::BaseThemeSettings &settings)
{
    QDomDocument document;
    if (settings.getStatus() == 0 &&
        (!document.setContent(content, false) ||
         settings.getName() != document.firstChildElement(QStringLiteral("theme"))
                                   .firstChildElement(QStringLiteral("name"))
                                   .text())) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const MemoryFile file(content);
    checkAgainstParser(content, TARN::BaseThemeSettings(file.path()));
    const TARN::ThemeConfigurationReader configuration(file.path());
    const TARN::QPaletteReader palette(file.path(), configuration.getBrushesMap(),
                                       configuration.getColorsMap(), QPalette());
    // The file is there, whatever it holds.
    if (configuration.getStatus() == 1 || palette.getStatus() == 1) {
        std::abort();
    }
    return 0;
}
