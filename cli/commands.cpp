#include "commandline.h"

Rows<const Command *> commands()
{
    static constexpr const Command *all[] = {
        &autoReplaceCommand, &enginesCommand,  &formatsCommand,   &getCommand,    &measureCommand,
        &presetsCommand,     &settingsCommand, &shortcutsCommand, &updateCommand,
    };
    return all;
}
