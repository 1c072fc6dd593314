// The other side in Go, with code that protoc-gen-go generates from mava_tum.proto. peer.py is the same in Python.
//
//	peer exchange          answers each line "message hex" with the message read, without unknown fields, and written
//	peer --restarted FILE  a receiver for examples/reconciliation that has lost everything; FILE is not read
package main

import (
	"bufio"
	"encoding/binary"
	"encoding/hex"
	"errors"
	"fmt"
	"io"
	"os"
	"reflect"
	"strings"

	"github.com/golang/protobuf/proto"
	"mava_tum"
)

// The longest message of the adapters has 9,295 bytes: a longer one is rejected before memory is allocated for it.
const limit = 1 << 16

// The kinds of examples/reconciliation/message_channel.h.
const (
	startReq = 1 + iota
	startRes
	sessReq
	sessRes
	_
	_
	replayReq
	replayResp
	completeReq
	completeRes
	heldSession
)

func exchange(in io.Reader, out *bufio.Writer) error {
	lines := bufio.NewScanner(in)
	lines.Buffer(nil, 4*limit)
	for lines.Scan() {
		words := strings.Split(lines.Text(), " ")
		wire, err := hex.DecodeString(words[1])
		if err != nil {
			return err
		}
		message := reflect.New(proto.MessageType("mava_tum." + words[0]).Elem()).Interface().(proto.Message)
		if err = proto.Unmarshal(wire, message); err != nil {
			return fmt.Errorf("%s: %v", words[0], err)
		}
		proto.DiscardUnknown(message)
		if wire, err = proto.Marshal(message); err != nil {
			return err
		}
		fmt.Fprintf(out, "%s\n", hex.EncodeToString(wire))
	}
	return lines.Err()
}

func readFrame(in io.Reader) (kind byte, message []byte, err error) {
	var front [4]byte
	if _, err = io.ReadFull(in, front[:]); err != nil {
		return
	}
	length := binary.BigEndian.Uint32(front[:])
	if length == 0 || length > limit {
		return 0, nil, fmt.Errorf("a length of %d", length)
	}
	frame := make([]byte, length)
	_, err = io.ReadFull(in, frame)
	return frame[0], frame[1:], err
}

func writeFrame(out *bufio.Writer, kind byte, message proto.Message) error {
	content, err := proto.Marshal(message)
	if err != nil {
		return err
	}
	binary.Write(out, binary.BigEndian, uint32(len(content)+1))
	out.WriteByte(kind)
	_, err = out.Write(content)
	return err
}

type receiver struct {
	sessions []*mava_tum.SessionContext
	numbers  []uint64
}

// This side has no session: the zeros report every named session as missing.
func (r *receiver) states(request *mava_tum.RecSessReq) *mava_tum.RecSessResp {
	response := &mava_tum.RecSessResp{Field_1: request.Field_1, Field_3: proto.Uint32(0), Field_4: proto.Uint32(0)}
	for _, state := range request.Field_3 {
		r.numbers = append(r.numbers, state.GetField_2())
		response.Field_2 = append(response.Field_2, &mava_tum.RecSessionState{
			Field_1: proto.Uint32(0), Field_2: state.Field_2, Field_3: proto.Uint32(0)})
	}
	return response
}

func (r *receiver) replay(request *mava_tum.RecSessReplayReq) *mava_tum.RecSessReplayResp {
	response := &mava_tum.RecSessReplayResp{Field_1: request.Field_1, Field_5: proto.Uint32(0)}
	for _, session := range request.Field_4 {
		if len(session.Qos) != 0 {
			start := &mava_tum.SessSvcStart{Field_1: proto.Uint64(r.numbers[len(r.sessions)])}
			for _, service := range session.Qos {
				start.Field_5 = append(start.Field_5, service.GetField_3())
			}
			response.Field_3 = append(response.Field_3, start)
		}
		r.sessions = append(r.sessions, session)
	}
	return response
}

func (r *receiver) answer(kind byte, message []byte) (byte, proto.Message, error) {
	switch kind {
	case startReq:
		request := &mava_tum.RecStartReq{}
		err := proto.Unmarshal(message, request)
		return startRes, &mava_tum.RecResp{Field_1: proto.Uint32(0), Field_3: proto.Uint32(0)}, err
	case sessReq:
		request := &mava_tum.RecSessReq{}
		err := proto.Unmarshal(message, request)
		return sessRes, r.states(request), err
	case replayReq:
		request := &mava_tum.RecSessReplayReq{}
		err := proto.Unmarshal(message, request)
		return replayResp, r.replay(request), err
	case completeReq:
		held := proto.Uint32(uint32(len(r.sessions)))
		return completeRes, &mava_tum.RecResp{Field_1: proto.Uint32(0), Field_3: held}, nil
	}
	return 0, nil, errors.New("a message that a keeper does not send")
}

func reconcile(in io.Reader, out *bufio.Writer) error {
	r := &receiver{}
	for kind := byte(0); kind != completeRes; {
		asked, message, err := readFrame(in)
		if err != nil {
			return err
		}
		var response proto.Message
		if kind, response, err = r.answer(asked, message); err != nil {
			return err
		}
		if err = writeFrame(out, kind, response); err != nil {
			return err
		}
		out.Flush()
	}
	for _, session := range r.sessions {
		if err := writeFrame(out, heldSession, session); err != nil {
			return err
		}
	}
	return nil
}

func main() {
	run := reconcile
	if len(os.Args) == 2 && os.Args[1] == "exchange" {
		run = exchange
	}
	out := bufio.NewWriter(os.Stdout)
	err := run(bufio.NewReader(os.Stdin), out)
	if err == nil {
		err = out.Flush()
	}
	if err != nil {
		fmt.Fprintln(os.Stderr, "peer:", err)
		os.Exit(1)
	}
}
