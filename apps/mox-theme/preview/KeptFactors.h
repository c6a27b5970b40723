#pragma once

#include <QtCore/QVariant>

namespace TARN::ThemeTool {

/// Keeps the disabled factors of the theme in force: whoever reads a configuration file publishes
/// that file's own in their place, which this takes back when it goes.
class KeptFactors
{
public:
    /// To be created before a file is read, with an application object.
    KeptFactors();
    KeptFactors(const KeptFactors &) = delete;
    KeptFactors &operator=(const KeptFactors &) = delete;
    ~KeptFactors();

private:
    QVariant m_factors;
};

} // namespace TARN::ThemeTool
