// Ids that buttons of every dialog share with the keyboard, for the resource scripts and the
// behaviour. Windows has the same names for them.
#pragma once

#define IDOK 1
#define IDCANCEL 2
