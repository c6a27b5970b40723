// Writes the pictures of all pages of the gallery, as they are by default, to the standard output:
// for each its size as two numbers of 32 bits, and its pixels.

#include "gallery/modes/PagePictures.h"

#include <QtWidgets/QApplication>

#include <array>
#include <cstdio>

namespace {

bool write(const QImage &picture)
{
    const std::array<qint32, 2> size{picture.width(), picture.height()};
    const auto byteCount = static_cast<std::size_t>(picture.sizeInBytes());
    return std::fwrite(size.data(), sizeof(size), 1, stdout) == 1 &&
           std::fwrite(picture.constBits(), 1, byteCount, stdout) == byteCount &&
           std::fflush(stdout) == 0;
}

} // namespace

int main(int argc, char **argv)
{
    // As of tests.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    if (argc != 2) {
        return 2;
    }
    applyShippedTheme(QString::fromLocal8Bit(argv[1]), false);
    for (const auto &page : TARN::Gallery::pages()) {
        if (!write(ShownPage(page).picture())) {
            return 1;
        }
    }
    return 0;
}
