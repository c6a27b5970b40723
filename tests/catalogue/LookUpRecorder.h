#pragma once

#include <resources/LookUpObserver.h>

#include <QtCore/QSet>
#include <QtCore/QString>

/// Records for as long as it lives which theme variables are looked up. One at a time.
class LookUpRecorder
{
public:
    LookUpRecorder();
    LookUpRecorder(const LookUpRecorder &) = delete;
    LookUpRecorder &operator=(const LookUpRecorder &) = delete;
    ~LookUpRecorder();

    /// Returns the paths of the variables: "brushes/MainBrush". Those of whole groups end in "/".
    QSet<QString> paths() const;

private:
    TARN::LookUpObserver m_former;
};
