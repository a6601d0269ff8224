// libtamrel.so is made of the layer libraries whole (the record builders,
// the checks, the JSON layer and the generate jobs); this file gives the
// target a source of its own.
