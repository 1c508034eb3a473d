// Any text of an identification: its three fields are what stands between the first semicolons.

#include "identifikation.h"
#include "pruefe.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    using namespace varnoth;
    using namespace varnoth::fuzzing;
    const std::string text(AlsText(daten, laenge));
    Identifikation ident;
    ident.text1 = ident.text2 = ident.text3 = "of an earlier controller";
    VerteileIdenttext(text, ident);
    for (const std::string* feld : {&ident.text1, &ident.text2, &ident.text3})
        Pruefe(feld->find(';') == std::string::npos, "a field has no semicolon");
    const std::string wieder = ident.text1 + ";" + ident.text2 + ";" + ident.text3 + ";";
    Pruefe((text + ";;;").starts_with(wieder), "the fields in a row are the text's beginning");
    return 0;
}
