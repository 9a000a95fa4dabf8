// Prints pages that have the names of headers of the system.

#include <features.h>
#include <string.h>
#include <time.h>

#include <string>

#include "features.h"
#include "string.h"
#include "time.h"

int main() {
    bool const isRunning = clock() >= 0 && strlen(std::string("x").c_str()) == 1;
    return isRunning && features() && string() && time() ? 0 : 1;
}
