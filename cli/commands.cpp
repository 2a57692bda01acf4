#include "commandline.h"

Rows<const Command *> commands()
{
    static constexpr const Command *all[] = {
        &autoReplaceCommand, &enginesCommand,  &exportCommand,    &findCommand,    &formatsCommand,
        &getCommand,         &measureCommand,  &notesCommand,     &presetsCommand, &replaceCommand,
        &scriptCommand,      &settingsCommand, &shortcutsCommand, &updateCommand,  &xmlCommand,
    };
    return all;
}
