#pragma once

#include <string>
#include <string_view>

namespace varnoth {

/// What stands for a byte that has arrived with a wrong parity bit or without its stop bit.
inline constexpr char Ersatzzeichen = '?';

/// Takes the marks out of what a driver hands over that marks broken bytes: FF 00 before each of them, and FF
/// before an FF that is none. However the bytes were cut, the marks are found.
class Paritaetsmarken {
public:
    /// @return the bytes without marks, Ersatzzeichen in place of each broken one; what may be the beginning
    /// of a mark is kept for the next call
    std::string Entferne(std::string_view roh);
    /// Forgets the beginning of a mark.
    void Vergiss() { stand = Stand::Frei; }

private:
    enum class Stand { Frei, NachMarke, VorGebrochenem };

    void Nimm(char byte, std::string& bytes);

    Stand stand = Stand::Frei;
};

} // namespace varnoth
