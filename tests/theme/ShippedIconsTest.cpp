#include <common_utils/Contrast.h>
#include <theme/Theme.h>
#include <theme/ThemeFactory.h>

#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtGui/QIcon>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <support/Text.h>

using TARN::ThemeFactory;
using TARN::Helpers::contrastRatio;

namespace {

/// Outlines and symbols are seen from this contrast on.
constexpr double symbolContrast = 3.0;
/// What antialiasing leaves at the edges is not looked at.
constexpr int solidAlpha = 200;

const QString repository = QStringLiteral(MOX_SHIPPED_THEMES);

void apply(const QString &theme)
{
    ThemeFactory::getInstance()->setThemesRepositoryPath(repository);
    ThemeFactory::getInstance()->getTheme(theme)->customize(qApp);
}

QString imageFolder(const QString &theme)
{
    return QStringLiteral("%1/%2/Images/%2").arg(repository, theme);
}

/// Returns the part of the solid pixels of \a icon that stand out from \a ground.
double visiblePart(const QIcon &icon, const QColor &ground)
{
    const QImage image = icon.pixmap(32).toImage().convertToFormat(QImage::Format_ARGB32);
    int solid = 0;
    int visible = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) < solidAlpha) {
                continue;
            }
            ++solid;
            visible += contrastRatio(QColor(pixel), ground) >= symbolContrast ? 1 : 0;
        }
    }
    return solid > 0 ? double(visible) / solid : 0;
}

/// Returns the part of \a icon that is seen on that of the surfaces where least of it is.
double visiblePart(const QIcon &icon, const QVector<QPalette::ColorRole> &surfaces)
{
    double least = 1;
    for (const QPalette::ColorRole role : surfaces) {
        least = qMin(least, visiblePart(icon, QApplication::palette().color(role)));
    }
    return least;
}

/// Returns the icons of message boxes, which stand on the window.
QVector<QStyle::StandardPixmap> messageIcons()
{
    return {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxWarning,
            QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxQuestion};
}

/// Returns the other icons that dialogs and windows of the toolkit show by themselves: in lists,
/// inputs, title bars and on buttons.
QVector<QStyle::StandardPixmap> otherIcons()
{
    return {QStyle::SP_FileDialogNewFolder,
            QStyle::SP_FileDialogToParent,
            QStyle::SP_FileDialogDetailedView,
            QStyle::SP_FileDialogListView,
            QStyle::SP_ArrowBack,
            QStyle::SP_ArrowForward,
            QStyle::SP_ArrowUp,
            QStyle::SP_ArrowDown,
            QStyle::SP_ArrowLeft,
            QStyle::SP_ArrowRight,
            QStyle::SP_ComputerIcon,
            QStyle::SP_DesktopIcon,
            QStyle::SP_DirHomeIcon,
            QStyle::SP_DirIcon,
            QStyle::SP_DirOpenIcon,
            QStyle::SP_DirClosedIcon,
            QStyle::SP_DirLinkIcon,
            QStyle::SP_FileIcon,
            QStyle::SP_FileLinkIcon,
            QStyle::SP_DriveHDIcon,
            QStyle::SP_DriveFDIcon,
            QStyle::SP_DriveCDIcon,
            QStyle::SP_TrashIcon,
            QStyle::SP_LineEditClearButton,
            QStyle::SP_DockWidgetCloseButton,
            QStyle::SP_TitleBarMinButton,
            QStyle::SP_TitleBarMaxButton,
            QStyle::SP_TitleBarNormalButton,
            QStyle::SP_TitleBarCloseButton,
            QStyle::SP_CommandLink,
            QStyle::SP_BrowserReload,
            QStyle::SP_BrowserStop,
            QStyle::SP_MediaPlay,
            QStyle::SP_MediaPause,
            QStyle::SP_MediaStop,
            QStyle::SP_MediaSeekForward,
            QStyle::SP_MediaSeekBackward,
            QStyle::SP_MediaSkipForward,
            QStyle::SP_MediaSkipBackward,
            QStyle::SP_MediaVolume,
            QStyle::SP_MediaVolumeMuted};
}

} // namespace

/// The images that the shipped themes bring.
class ShippedIconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void foldersAreComplete_data();
    void foldersAreComplete();
    void standardIconsAreSeen_data();
    void standardIconsAreSeen();
    void iconsOfTheStyleCanBeRecolored_data();
    void iconsOfTheStyleCanBeRecolored();

private:
    static void addThemeRows();
};

void ShippedIconsTest::addThemeRows()
{
    QTest::addColumn<QString>("theme");
    QTest::newRow("Dark") << text("Dark");
    QTest::newRow("HighContrast") << text("HighContrast");
    QTest::newRow("Light") << text("Light");
}

void ShippedIconsTest::foldersAreComplete_data()
{
    addThemeRows();
}

void ShippedIconsTest::foldersAreComplete()
{
    QFETCH(const QString, theme);
    QVERIFY(QFileInfo(imageFolder(theme) + text("/scalable")).isDir());
    const QSettings index(imageFolder(theme) + text("/index.theme"), QSettings::IniFormat);
    QCOMPARE(index.value(text("Icon Theme/Name")).toString(), theme);
    QCOMPARE(index.value(text("Icon Theme/Directories")).toString(), text("scalable"));
    QCOMPARE(index.value(text("scalable/Type")).toString(), text("Scalable"));
}

void ShippedIconsTest::standardIconsAreSeen_data()
{
    addThemeRows();
}

void ShippedIconsTest::standardIconsAreSeen()
{
    QFETCH(const QString, theme);
    apply(theme);
    const auto verify = [](QStyle::StandardPixmap pixmap, const auto &surfaces) {
        const QIcon icon = QApplication::style()->standardIcon(pixmap);
        QVERIFY2(visiblePart(icon, surfaces) > 0.5, qPrintable(QString::number(pixmap)));
    };
    for (const QStyle::StandardPixmap pixmap : messageIcons()) {
        verify(pixmap, QVector<QPalette::ColorRole>{QPalette::Window});
    }
    for (const QStyle::StandardPixmap pixmap : otherIcons()) {
        verify(pixmap,
               QVector<QPalette::ColorRole>{QPalette::Window, QPalette::Base, QPalette::Button});
    }
}

void ShippedIconsTest::iconsOfTheStyleCanBeRecolored_data()
{
    addThemeRows();
}

void ShippedIconsTest::iconsOfTheStyleCanBeRecolored()
{
    QFETCH(const QString, theme);
    // These are always shown in the colour of a state, which takes the place of this one.
    for (const char *name :
         {"chevron.down", "chevron.left", "chevron.right", "chevron.up", "view.calendar"}) {
        QFile file(imageFolder(theme) + text("/scalable/%1.svg").arg(text(name)));
        QVERIFY2(file.open(QIODevice::ReadOnly), name);
        QVERIFY2(file.readAll().contains("#E5EEF4"), name);
    }
    QFile checked(imageFolder(theme) + text("/scalable/status.checked.circular.colored.svg"));
    QVERIFY(checked.open(QIODevice::ReadOnly));
    QVERIFY(checked.readAll().contains("#F6B436"));
}

QTEST_MAIN(ShippedIconsTest)
#include "ShippedIconsTest.moc"
