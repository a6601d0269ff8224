#include "cli/commands.h"

int main(int argc, char** argv) { return tamrel::cli::run(argc, argv); }
