#include "austauschstand.h"

#include "austausch.h"
#include "startzustand.h"

namespace varnoth::modAustausch {

namespace {

Austauschstand stand;
const Startwert startwert(stand);

} // namespace

Austauschstand& DerStand() {
    return stand;
}

unsigned long Letzter() {
    return stand.gewissheit.Letzter();
}

unsigned long GewissBis() {
    return stand.gewissheit.GewissBis();
}

bool IstUnverwechselbar() {
    return stand.gewissheit.IstUnverwechselbar();
}

unsigned long Brueche() {
    return stand.gewissheit.Brueche();
}

bool IstUnruhig() {
    return stand.unruhig;
}

} // namespace varnoth::modAustausch
