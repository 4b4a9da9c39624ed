// The reference client of the protocol versions with a session: node session.mjs COMPANION PROJECT
import assert from 'node:assert/strict';
import { Client } from '@modelcontextprotocol/sdk/client/index.js';
import { StdioClientTransport } from '@modelcontextprotocol/sdk/client/stdio.js';
import * as types from '@modelcontextprotocol/sdk/types.js';
import { converse } from './conversation.mjs';
import { watch } from './watched.mjs';

const [command, project] = process.argv.slice(2);
const client = new Client({ name: 'test', version: '1' });
const transport = new StdioClientTransport({ command, args: [project], env: process.env });
const messageCount = watch(transport, (type, value) => types[`${type}Schema`].safeParse(value).error?.message);
await client.connect(transport);
assert.equal(client.getServerVersion().name, 'vellory');
await client.ping();
await converse((name, args, options) => client.callTool({ name, arguments: args }, undefined, options), client);
await client.close();
console.log(`${messageCount()} messages are as the protocol has them.`);
