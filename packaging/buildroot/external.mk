include $(sort $(wildcard $(BR2_EXTERNAL_ZEMKIT_PATH)/package/*/*.mk))
