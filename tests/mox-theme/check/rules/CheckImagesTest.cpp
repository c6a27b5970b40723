#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtGui/QImage>
#include <QtTest/QtTest>

#include <mox-theme/support/SoundTheme.h>
#include <support/MessageRecorder.h>
#include <text/Literals.h>

using namespace TARN::ThemeTool;

namespace {

const QString indexFile = QStringLiteral("Images/Sound/index.theme");
const QString cursorFile = QStringLiteral("Images/Sound/Cursors/pick.cur");

} // namespace

/// What is found in a theme's images and fonts.
class CheckImagesTest : public QObject
{
    Q_OBJECT

private:
    static void rename(const SoundTheme &theme, const QString &from, const QString &to)
    {
        QVERIFY(QDir(theme.directory()).rename(from, to));
    }

    static void verifyOnly(const SoundTheme &theme, const QString &place)
    {
        const MessageRecorder unread;
        QCOMPARE(places(theme.check()), QStringList(place));
    }

private Q_SLOTS:
    void folderOfAnotherCaseIsSuggested()
    {
        const SoundTheme theme;
        rename(theme, "Images/Sound"_s, "Images/sound"_s);
        theme.write("Images/Other/a.txt"_s, "");
        verifyOnly(theme, "theme.xml:2:1 image-folder"_s);
        QCOMPARE(theme.check().first().suggestion, "Rename \"Images/sound\" to \"Images/Sound\""_s);
    }

    void onlyFolderIsSuggested()
    {
        const SoundTheme theme;
        rename(theme, "Images/Sound"_s, "Images/Noise"_s);
        verifyOnly(theme, "theme.xml:2:1 image-folder"_s);
        QVERIFY(theme.check().first().suggestion.contains("Images/Noise"_s));
    }

    void missingFolderIsFound()
    {
        const SoundTheme theme;
        QVERIFY(QDir(theme.path("Images"_s)).removeRecursively());
        verifyOnly(theme, "theme.xml:2:1 image-folder"_s);
        QCOMPARE(theme.check().first().suggestion, "Create it"_s);
    }

    void nameWithASeparatorIsNoFolder()
    {
        const SoundTheme theme;
        theme.replace("theme.xml"_s, "Sound", "Sound/scalable");
        verifyOnly(theme, "theme.xml:2:1 image-folder"_s);
    }

    void missingIndexIsFound()
    {
        const SoundTheme theme;
        theme.remove(indexFile);
        verifyOnly(theme, "index.theme:0:0 missing-file"_s);
    }

    void unlistedIconsAreFound()
    {
        const SoundTheme theme;
        theme.replace(indexFile, "=scalable", "=16x16,Scalable");
        verifyOnly(theme, "index.theme:3:0 image-folder"_s);
    }

    void iconsWithoutASizeAreFound()
    {
        const SoundTheme theme;
        theme.replace(indexFile, "Size=16\n", "");
        verifyOnly(theme, "index.theme:0:0 image-folder"_s);
    }

    void iconsAmongOthersAreListed()
    {
        const SoundTheme theme;
        theme.replace(indexFile, "=scalable", " = 16x16, scalable");
        QVERIFY(theme.check().isEmpty());
    }

    void unreadableIconIsFound_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << "empty.svg" << QByteArray();
        QTest::newRow("no image") << "text.svg" << QByteArray("hello");
        QTest::newRow("broken") << "broken.svg" << QByteArray("<svg><path></svg>");
        QTest::newRow("linking to another file")
            << "link.svg"
            << QByteArray("<svg xmlns:xlink='http://www.w3.org/1999/xlink'>"
                          "<image width='9' height='9' xlink:href='other.png'/></svg>");
        QTest::newRow("cut off") << "cut.png" << QByteArray("\x89PNG\r\n\x1a\n");
    }

    void unreadableIconIsFound()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        const SoundTheme theme;
        theme.write("Images/Sound/scalable/"_s + name, content);
        verifyOnly(theme, name + ":0:0 unreadable-image"_s);
    }

    void otherFilesAreNoIcons()
    {
        const SoundTheme theme;
        theme.write("Images/Sound/scalable/README"_s, "text");
        theme.write("Images/Sound/scalable/more.rcc"_s, "text");
        QVERIFY(theme.check().isEmpty());
    }

    void cutCursorIsFound()
    {
        const SoundTheme theme;
        theme.write(cursorFile, theme.content(cursorFile).left(40));
        verifyOnly(theme, "pick.cur:0:0 unreadable-image"_s);
    }

    void largePicturesAreFound_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("height");
        QTest::newRow("icon") << "Images/Sound/scalable/large.png" << 4097;
        QTest::newRow("cursor") << "Images/Sound/Cursors/large.png" << 1025;
    }

    /// The library does not show them.
    void largePicturesAreFound()
    {
        QFETCH(QString, name);
        QFETCH(int, height);
        constexpr int width = 4096;
        QByteArray picture;
        QBuffer buffer(&picture);
        buffer.open(QIODevice::WriteOnly);
        QVERIFY(QImage(width, height, QImage::Format_Mono).save(&buffer, "PNG"));
        const SoundTheme theme;
        theme.write(name, picture);
        verifyOnly(theme, "large.png:0:0 unreadable-image"_s);
    }

    /// The picture is shown, but has no hotspot.
    void pictureIsNoCursor()
    {
        QByteArray picture;
        QBuffer buffer(&picture);
        buffer.open(QIODevice::WriteOnly);
        QVERIFY(QImage(16, 16, QImage::Format_ARGB32).save(&buffer, "PNG"));
        const SoundTheme theme;
        theme.write(cursorFile, picture);
        verifyOnly(theme, "pick.cur:0:0 unreadable-image"_s);
        QVERIFY(theme.check().first().text.contains("hotspot"_s));
    }

    /// The library takes the low byte for a signed one.
    void hotspotOutsideThePictureIsFound()
    {
        constexpr int hotspotOffset = 10;
        const SoundTheme theme;
        QByteArray content = theme.content(cursorFile);
        content[hotspotOffset] = '\x81';
        theme.write(cursorFile, content);
        verifyOnly(theme, "pick.cur:0:0 unreadable-image"_s);
    }

    void unreadableFontIsFound()
    {
        const SoundTheme theme;
        theme.write("Fonts/none.ttf"_s, "no font");
        theme.write("Fonts/LICENSE.txt"_s, "text");
        verifyOnly(theme, "none.ttf:0:0 invalid-font"_s);
    }
};

QTEST_MAIN(CheckImagesTest)
#include "CheckImagesTest.moc"
