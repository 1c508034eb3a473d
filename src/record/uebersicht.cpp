#include "uebersicht.h"
