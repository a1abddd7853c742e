# The README's embedding example is the file that is built and run, word for word.

file(READ ${SOURCE}/README.md readme)
file(READ ${SOURCE}/examples/embedding/main.cpp example)
string(FIND "${readme}" "```cpp\n${example}```" position)
if(position EQUAL -1)
    message(FATAL_ERROR "README.md does not show examples/embedding/main.cpp as it stands")
endif()
