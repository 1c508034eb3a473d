#pragma once

namespace varnoth {

/// Asks for a configuration in text form and puts it in the place of the configuration in use, which then
/// counts as changed. A text with a wrong line or an implausible value changes nothing: the lines or the
/// values are told. Whether unsaved changes are given up is asked last. True when the configuration was
/// replaced.
bool ImportiereKonfigurationstext();

} // namespace varnoth
