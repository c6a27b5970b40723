#pragma once

#include <QtGui/QImage>

#include <memory>
#include <pages/PageTable.h>

class QWidget;

/// A page of the gallery in a window of its own, as it looks in the mode in force.
class ShownPage
{
public:
    explicit ShownPage(const TARN::Gallery::Page &page);
    ~ShownPage();

    QWidget &window() const { return *m_window; }
    /// Returns its picture without texts.
    QImage picture() const;

private:
    std::unique_ptr<QWidget> m_window;
};

/// Applies the shipped theme \a name, in the complete mode or as by default.
void applyShippedTheme(const QString &name, bool isComplete);
