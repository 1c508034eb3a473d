#pragma once

namespace varnoth::pruefung {

/// From now on a warning in Qt's log that no test expects (`ErwarteWarnung`) fails the running test. Needs
/// the test framework's initialisation.
void UeberwacheLog();

} // namespace varnoth::pruefung
