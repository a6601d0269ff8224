#pragma once
namespace tamrel::cli {
int run(int argc, char** argv);
}
