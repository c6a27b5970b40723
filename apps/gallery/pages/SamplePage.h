#pragma once

#include <QtWidgets/QWidget>

#include <functional>

class QGridLayout;

namespace TARN::Gallery {

/// A page that shows each of its samples twice: enabled at the leading side, disabled beside it.
class SamplePage : public QWidget
{
public:
    SamplePage();

    /// Adds a sample below the others. \a create is called once for either column and gives a
    /// new widget. The rows share the height that is left over in proportion to \a stretch.
    void addSample(const QString &title, const std::function<QWidget *()> &create, int stretch = 0);

    /// Closes the page: what height is left over stays below the samples unless one of them
    /// stretches.
    void finish();

private:
    QGridLayout *m_grid;
    bool m_stretches = false;
};

} // namespace TARN::Gallery
