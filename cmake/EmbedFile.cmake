# Writes a C++ source holding a file's bytes: cmake -DINPUT=f -DOUTPUT=f.cpp -DNAME=kData -P EmbedFile.cmake
file(READ ${INPUT} hex HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
file(WRITE ${OUTPUT} "// Generated from ${NAME}'s source file; do not edit.\n"
                     "namespace zenta::qt::translations {\n"
                     "extern const unsigned char ${NAME}[] = {${bytes}0};\n"
                     "extern const int ${NAME}Size = static_cast<int>(sizeof(${NAME})) - 1;\n"
                     "}  // namespace zenta::qt::translations\n")
