set print pretty on
print session
print session.qos[0]
print session.subscriber_v6.field_2
print services
print clear_bit
print/r session.subscriber_v4
