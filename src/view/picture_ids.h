// The start-up picture at two resolutions, for the resource script and the window that draws it.
#pragma once

#define IDB_WELCOME 162
#define IDB_WELCOME_DENSE 163
