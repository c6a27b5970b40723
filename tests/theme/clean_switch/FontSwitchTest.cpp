#include <resources/ThemeResources.h>
#include <theme/BaseTheme.h>

#include <QtGui/QFontDatabase>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::BaseTheme;
using TARN::ThemeResources;

namespace {

/// Records the font that is in force whenever an object is told of a new one.
class FontChanges : public QObject
{
public:
    const QVector<QFont> &fonts() const { return m_fonts; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FontChange) {
            m_fonts.append(static_cast<QWidget *>(watched)->font());
        } else if (event->type() == QEvent::ApplicationFontChange) {
            m_fonts.append(QApplication::font());
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QVector<QFont> m_fonts;
};

/// A combo box that shows a font of the shipped themes.
class ChosenFont : public QFontComboBox
{
public:
    ChosenFont() { setCurrentFont(QFont(text("Open Sans"))); }
};

} // namespace

/// The fonts of themes, and what applications and widgets hear of them, in a clean switch.
///
/// A theme that defines little leaves placeholders in the stylesheet, which the toolkit tells.
class FontSwitchTest : public QObject
{
    Q_OBJECT

private:
    ThemeRepository m_repository;

    QString directory(const QString &name) const
    {
        return QDir(text(MOX_SHIPPED_THEMES)).exists(name)
                   ? text(MOX_SHIPPED_THEMES) + QLatin1Char('/') + name
                   : m_repository.path(name);
    }

    void apply(const QString &name) const { BaseTheme(directory(name)).customize(qApp); }

    /// Writes the theme \a name with a font file of its own, which has the shipped family.
    void addThemeWithFont(const QString &name, const QByteArray &tail) const
    {
        QFile file(directory(text("Dark")) + text("/Fonts/OpenSans-Regular.ttf"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_repository.addTheme(name);
        m_repository.write(name + text("/Fonts/Own.ttf"), file.readAll() + tail);
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_repository.addTheme(text("Other"));
        m_repository.write(text("Bare/theme.xml"), "<theme><name>Bare</name></theme>");
        qApp->setProperty("appLiveThemeSwitch", true);
    }

    void nobodyHearsOfAnInterimFont_data()
    {
        QTest::addColumn<QStringList>("themes");
        QTest::newRow("the first theme") << QStringList{text("Dark")};
        QTest::newRow("another") << QStringList{text("Dark"), text("Other")};
        QTest::newRow("and back") << QStringList{text("Dark"), text("Other"), text("Dark")};
        QTest::newRow("a theme without fonts") << QStringList{text("Dark"), text("Bare")};
    }

    void nobodyHearsOfAnInterimFont()
    {
        QFETCH(QStringList, themes);
        const MessageRecorder warnings;
        const QString last = themes.takeLast();
        for (const QString &name : qAsConst(themes)) {
            apply(name);
        }
        QWidget window;
        const QLabel label(text("Label"), &window);
        QPushButton button(text("Button"), &window);
        window.show();
        FontChanges changes;
        for (QObject *object : QObjectList{qApp, &window, &button}) {
            object->installEventFilter(&changes);
        }
        const QSignalSpy signal(qApp, &QGuiApplication::fontChanged);
        apply(last);
        QCOMPARE(signal.count(), 1);
        QCOMPARE(signal.first().first().value<QFont>(), QApplication::font());
        QVERIFY(changes.fonts().size() >= 3);
        for (const QFont &font : changes.fonts()) {
            QCOMPARE(font, QApplication::font());
        }
    }

    void sizesLeftOutHaveTheFontOfBefore()
    {
        const MessageRecorder warnings;
        const QFont base = QApplication::font();
        apply(text("Dark"));
        QVERIFY(QApplication::font() != base);
        apply(text("Bare"));
        QCOMPARE(QApplication::font(), base);
        QCOMPARE(ThemeResources::getFont(text("large")), base);
    }

    void aFontThatBothThemesShipStays()
    {
        const MessageRecorder warnings;
        apply(text("Dark"));
        ChosenFont box;
        const int index = box.currentIndex();
        const QSignalSpy database(qApp, &QGuiApplication::fontDatabaseChanged);
        const QSignalSpy fonts(&box, &QFontComboBox::currentFontChanged);
        const QSignalSpy indexes(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
        const QSignalSpy texts(&box, &QComboBox::currentTextChanged);
        for (const char *name : {"Light", "HighContrast", "Dark", "Dark"}) {
            apply(text(name));
        }
        QCOMPARE(box.currentText(), text("Open Sans"));
        QCOMPARE(box.currentIndex(), index);
        for (const QSignalSpy *spy : {&database, &fonts, &indexes, &texts}) {
            QCOMPARE(spy->count(), 0);
        }
        apply(text("Other"));
        QCOMPARE(QFontDatabase::applicationFontFamilies(0), QStringList());
        QCOMPARE(QFontDatabase::applicationFontFamilies(1), QStringList());
    }

    /// The files differ, but one of them is always there.
    void aFamilyThatBothThemesShipStays()
    {
        const MessageRecorder warnings;
        addThemeWithFont(text("First"), QByteArray());
        addThemeWithFont(text("Second"), QByteArray(4, '\0'));
        apply(text("First"));
        ChosenFont box;
        QCOMPARE(box.currentText(), text("Open Sans"));
        const QSignalSpy fonts(&box, &QFontComboBox::currentFontChanged);
        const QSignalSpy texts(&box, &QComboBox::currentTextChanged);
        for (const char *name : {"Second", "First", "Second"}) {
            apply(text(name));
            QCOMPARE(box.currentFont().family(), text("Open Sans"));
        }
        QCOMPARE(fonts.count(), 0);
        QCOMPARE(texts.count(), 0);
    }

    /// A theme's author may write a font anew, and apply the theme again.
    void aFontWrittenAnewIsReadAnew()
    {
        addThemeWithFont(text("Written"), QByteArray());
        apply(text("Written"));
        const QSignalSpy database(qApp, &QGuiApplication::fontDatabaseChanged);
        apply(text("Written"));
        QCOMPARE(database.count(), 0);
        addThemeWithFont(text("Written"), QByteArray(4, '\0'));
        apply(text("Written"));
        QVERIFY(database.count() > 0);
    }
};

QTEST_MAIN(FontSwitchTest)
#include "FontSwitchTest.moc"
