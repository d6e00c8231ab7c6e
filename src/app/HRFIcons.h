#pragma once

#include <QIcon>

/// The program's own icons: drawings in one colour, which is that of the text around them, in light
/// and dark surroundings alike.
namespace HRFIcons {

/// The icon "resources/icons/NAME.svg"; there must be one (assertion "icon").
QIcon named(const QString &name);

} // namespace HRFIcons
