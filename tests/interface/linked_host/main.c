#include <kv_config_gui_mvc/config_gui.h>

#include <stdio.h>

/* The one call that needs neither settings nor a display: the module says that it got no record. */
int main(void)
{
    printf("%d\n", (int)showMVCEncoderPages(NULL, 0, NULL));
    return 0;
}
