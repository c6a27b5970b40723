#include "support/themes/UniqueTheme.h"

#include <style/BaseStyle.h>

#include <QtCore/QLibrary>
#include <QtTest/QtTest>
#include <QtWidgets/QWidget>

#include <memory>
#include <support/Text.h>

using TARN::BaseStyle;

namespace {

/// A plugin as long as it is loaded.
class Plugin
{
public:
    explicit Plugin(const char *file)
        : m_library(text(file))
    {
        const auto make = reinterpret_cast<QWidget *(*)()>(m_library.resolve("makePluginWidget"));
        m_widget.reset(make ? make() : nullptr);
    }
    ~Plugin()
    {
        m_widget.reset();
        m_library.unload();
    }
    Q_DISABLE_COPY_MOVE(Plugin)

    QWidget *widget() const { return m_widget.get(); }
    /// Where the plugin keeps what describes its class.
    const QMetaObject *place() const { return m_widget->metaObject(); }

private:
    QLibrary m_library;
    std::unique_ptr<QWidget> m_widget;
};

} // namespace

/// A plugin whose class comes to lie where another plugin's class lay.
class UnloadedPluginTest : public QObject
{
    Q_OBJECT

private:
    UniqueTheme m_theme;
    BaseStyle m_style;

    QString disabledText(const QWidget &widget) const
    {
        return m_theme.nameOf(widget.palette().brush(QPalette::Disabled, QPalette::WindowText));
    }

    bool isSmall(const QWidget &widget) const
    {
        return m_style.pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, &widget) == 1;
    }

private Q_SLOTS:
    void aLabelAfterAComboBox()
    {
        const QMetaObject *place = nullptr;
        {
            const Plugin plugin(COMBO_BOX_PLUGIN);
            QVERIFY(plugin.widget());
            m_style.polish(plugin.widget());
            place = plugin.place();
        }
        const Plugin plugin(SMALL_LABEL_PLUGIN);
        QVERIFY(plugin.widget());
        if (plugin.place() != place) {
            QSKIP("The plugin was loaded to another place.");
        }
        m_style.polish(plugin.widget());
        QCOMPARE(disabledText(*plugin.widget()), text("ForegroundBrushDisabled"));
    }

    void otherPropertiesAfterSmall()
    {
        const QMetaObject *place = nullptr;
        {
            const Plugin plugin(SMALL_LABEL_PLUGIN);
            QVERIFY(plugin.widget());
            QVERIFY(isSmall(*plugin.widget()));
            place = plugin.place();
        }
        const Plugin plugin(DENSE_LABEL_PLUGIN);
        QVERIFY(plugin.widget());
        if (plugin.place() != place) {
            QSKIP("The plugin was loaded to another place.");
        }
        QVERIFY(!isSmall(*plugin.widget()));
    }
};

QTEST_MAIN(UnloadedPluginTest)
#include "UnloadedPluginTest.moc"
