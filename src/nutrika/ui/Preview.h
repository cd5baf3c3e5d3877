#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace nutrika {

/// Which sample data a screen shows at design time; the running module always uses NotPreview.
namespace Preview {
Q_NAMESPACE
QML_ELEMENT
enum Value
{
    Main,
    /// The calculator with a long food name, a large quantity and a meal: lines at their fullest.
    LongLines,
    ShowPicker,
    Recipes,
    Images,
    Descriptions,
    AddNew,
    Edit,
    NotPreview
};
Q_ENUM_NS(Value)
} // namespace Preview

} // namespace nutrika
