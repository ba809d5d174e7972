#pragma once

#include <QtGlobal>

/// Without a display the toolkit ends the process with a page of text and a core dump. While the
/// object lives, the process ends in that case as on any other trouble: with one line and the exit
/// code for trouble.
class FatalMessages
{
public:
    FatalMessages();
    ~FatalMessages();
    FatalMessages(const FatalMessages&) = delete;
    FatalMessages& operator=(const FatalMessages&) = delete;

private:
    QtMessageHandler m_former;
};
