// A widget of which each plugin has a kind of its own, under the same name.

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

namespace {

class PluginWidget : public PLUGIN_BASE
{
    Q_OBJECT
    Q_PROPERTY(bool PLUGIN_PROPERTY MEMBER m_value)

private:
    bool m_value = true;
};

} // namespace

extern "C" Q_DECL_EXPORT QWidget *makePluginWidget()
{
    return new PluginWidget;
}

#include "PluginWidget.moc"
