// Systems that have no path for what lies in no folder.

#include "MemoryFile.h"
#include "PassedText.h"

int openMemoryFile()
{
    return -1;
}

bool ReadableText::keepInMemory(const QByteArray&)
{
    return false;
}

ReadableText::~ReadableText() = default;

std::unique_ptr<WrittenText> WrittenText::inPipe()
{
    return nullptr;
}
