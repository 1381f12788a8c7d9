// A library of the right place and the wrong content.

extern "C" int SomethingElse() {
    return 1;
}
