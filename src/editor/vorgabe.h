#pragma once

#include "parameterstelle.h"

#include <QString>

#include <functional>
#include <vector>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QWidget;

namespace varnoth {

/// A setting of the editor beside its factory default.
struct Vorgabe {
    std::vector<QWidget*> elemente;            ///< the controls it is set with
    std::function<bool()> weichtAb;            ///< whether the controls show something else
    std::function<QString()> worte;            ///< the default in words
    std::function<void()> stelleZurueck;       ///< lets the controls show the default
    std::function<const QWidget*()> traeger{}; ///< of several controls, the one that shows the value
};

/// The settings of the kinds of controls. Which item, button or text is the default may hang on what else is
/// set, so it is asked for each time; -1 of a group: none of them is.
Vorgabe VorgabeVon(QComboBox& box, const std::function<int()>& platz);
Vorgabe VorgabeVon(QButtonGroup& gruppe, const std::function<int()>& knopf);
Vorgabe VorgabeVon(QCheckBox& kasten, bool angekreuzt);
Vorgabe VorgabeVon(QLineEdit& feld, const QString& text);
/// A parameter that a window behind the button edits in the image.
Vorgabe VorgabeVon(QPushButton& knopf, const Parameterstelle& stelle);

/// The default value of a register.
std::int32_t Vorgabewert(const Parameterstelle& stelle);

} // namespace varnoth
