# cmake -DINPUT=texte.tsv -DOUTPUT=texte_daten.cpp -P Embed.cmake: the file's bytes as a C++ source.
file(READ ${INPUT} digits HEX)
string(REGEX REPLACE "(..)" "0x\\1," bytes "${digits}")
string(REGEX REPLACE "(................................................................................)" "\\1\n    " bytes "${bytes}")
file(WRITE ${OUTPUT} "#include \"texte_daten.h\"

namespace varnoth {

namespace {
constexpr unsigned char datei[] = {
    ${bytes}
};
} // namespace

std::string_view TexteDatei() {
    return {reinterpret_cast<const char*>(datei), sizeof datei};
}

} // namespace varnoth
")
